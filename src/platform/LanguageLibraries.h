// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StringTable.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace quorvantis {

/// One loaded language library: the texts and pictures of a language. It stays loaded as long as this lives.
class LanguageLibrary : public StringTable {
 public:
  /// What the library's `GetLanguageID` returns; nothing if it does not export that function: then it is not
  /// a language.
  virtual std::optional<std::uint16_t> Id() const = 0;

  /// Whether the library has a text of that number, even an empty one.
  virtual bool HasText(int number) const { return !Text(number).empty(); }

  /// The text of a control in a dialog, both by number; control 0 is the caption of the dialog itself. Empty
  /// when the library has none.
  virtual std::u16string DialogText(int dialog, int control) const = 0;

  /// A picture as PNG data, found by its resource name without regard to the case of ASCII letters
  /// ("NextQuestionU"; "206" for a numbered one). `scale` is 1 or 2 bitmap pixels to one layout pixel. Empty
  /// when the library has none. The bytes belong to the library.
  virtual std::span<const std::byte> Bitmap(std::string_view name, int scale) const = 0;
};

/// Loads language libraries.
class LanguageLibraries {
 public:
  virtual ~LanguageLibraries() = default;

  /// Nothing when the file cannot be loaded as a library at all.
  virtual std::unique_ptr<LanguageLibrary> Load(const std::filesystem::path& file) = 0;
};

}  // namespace quorvantis
