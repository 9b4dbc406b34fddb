// SPDX-License-Identifier: MIT
#include "exchange/moodle/MoodleFiles.h"

#include "exchange/form/TextSource.h"
#include "exchange/markup/Addresses.h"
#include "exchange/moodle/MoodleXml.h"
#include "exchange/xml/Base64.h"
#include "exchange/xml/HtmlParts.h"
#include "exchange/xml/XmlText.h"
#include "platform/documents/XmlPart.h"
#include "platform/texts/ExchangeTexts.h"

#include <utility>

namespace quorvantis {
namespace {

std::optional<ExchangedFile> KeepBase64(const std::u16string& name, std::string_view text,
                                        ReadingTools& tools) {
  const auto bytes = FromBase64(text);
  if (!bytes) tools.notes.Tell(text_id::kExchangePartNotRead, {Excerpt(name)});
  return bytes ? tools.files.Keep(name, *bytes) : std::nullopt;
}

}  // namespace

MoodleFiles::MoodleFiles(pugi::xml_node element, ReadingTools& tools) : tools_(tools) {
  for (const pugi::xml_node file : ChildrenOf(element, "file")) {
    std::u16string name = TextOf(ValueOf(file, "name"));
    if (nodes_.try_emplace(name, file).second) names_.push_back(std::move(name));
  }
}

std::optional<ExchangedFile> MoodleFiles::Find(std::u16string_view address) {
  if (!address.starts_with(kMoodleFiles)) return std::nullopt;
  const std::u16string name = FileNameIn(address);
  return nodes_.contains(name) ? Keep(name) : std::nullopt;
}

void MoodleFiles::TakeRest(ExchangedQuestion& question) {
  for (const std::u16string& name : names_) {
    if (kept_.contains(name) || !TakesFile(question, name, tools_.notes)) continue;
    if (auto file = Keep(name)) question.files.push_back(std::move(*file));
  }
}

std::optional<ExchangedFile> MoodleFiles::Keep(const std::u16string& name) {
  const auto known = kept_.find(name);
  if (known != kept_.end()) return known->second;
  auto file = KeepBase64(name, nodes_[name].text().get(), tools_);
  kept_[name] = file;
  return file;
}

void TakeOldPicture(pugi::xml_node questionNode, ReadingTools& tools, ExchangedQuestion& question) {
  const std::u16string content = ContentOfChild(questionNode, "image");
  const std::u16string name(Trimmed(content));
  const pugi::xml_node bytes = ChildOf(questionNode, "image_base64");
  if (name.empty() && bytes.text().empty()) return;
  if (bytes.text().empty()) return tools.notes.Tell(text_id::kExchangeNotFetched, {Excerpt(name)});
  auto file = KeepBase64(FileNameIn(name), bytes.text().get(), tools);
  if (file) question.files.push_back(std::move(*file));
}

}  // namespace quorvantis
