// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LanguageLibraries.h"
#include "support/TemporaryFolder.h"

#include <map>
#include <memory>
#include <optional>
#include <string>

namespace quorvantis::test {

struct FakeLibrary : LanguageLibrary {
  std::optional<std::uint16_t> id;
  std::map<int, std::u16string> texts;

  std::optional<std::uint16_t> Id() const override { return id; }
  bool HasText(int number) const override { return texts.contains(number); }
  std::u16string Text(int number) const override { return HasText(number) ? texts.at(number) : u""; }
  std::u16string DialogText(int dialog, int control) const override {
    return dialog == 100 && control == 1 ? u"own OK" : u"";
  }
  std::span<const std::byte> Bitmap(std::string_view, int) const override { return {}; }
};

/// The content of a file stands for its library: "1033 Name" or only one of the two; "broken" cannot be
/// loaded.
class FakeLibraries : public LanguageLibraries {
 public:
  std::unique_ptr<LanguageLibrary> Load(const std::filesystem::path& file) override {
    const std::string content = ReadBytes(file);
    if (content == "broken") return nullptr;
    auto library = std::make_unique<FakeLibrary>();
    const std::string name = content.substr(std::min(content.find(' ') + 1, content.size()));
    if (!content.starts_with(' ')) library->id = static_cast<std::uint16_t>(std::stoi(content));
    if (content.find(' ') != std::string::npos) library->texts[158] = {name.begin(), name.end()};
    library->texts[101] = u"";
    return library;
  }
};

}  // namespace quorvantis::test
