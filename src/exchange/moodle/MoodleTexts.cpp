// SPDX-License-Identifier: MIT
#include "exchange/moodle/MoodleTexts.h"

#include "exchange/markup/MarkdownText.h"
#include "exchange/markup/MarkupNotes.h"
#include "exchange/moodle/ClozeReading.h"
#include "exchange/moodle/Languages.h"
#include "exchange/moodle/MoodleFiles.h"
#include "exchange/xml/HtmlParts.h"
#include "exchange/xml/XmlText.h"
#include "platform/documents/XmlPart.h"
#include "platform/texts/ExchangeTexts.h"

#include <utility>

namespace quorvantis {

/// What a text means depends on its format.
ReadMarkup MoodleTexts::ReadAs(std::string_view format, std::u16string_view text) const {
  if (format == "plain_text") return {PlainToExamText(text), {}, {}};
  if (format == "markdown") {
    if (HasMarkdownBlocks(text)) tools_.notes.Tell(text_id::kExchangeMarkdownStays);
    return ReadHtml(MarkdownToHtml(text));
  }
  const auto sideBySide = InOneLanguage(text);
  if (sideBySide) text = *sideBySide;
  return format == "moodle_auto_format" ? ReadExamText(text) : ReadHtml(text);
}

std::optional<std::u16string> MoodleTexts::InOneLanguage(std::u16string_view html) const {
  auto sideBySide = LanguagesSideBySide(html);
  if (sideBySide) tools_.notes.Tell(text_id::kExchangeLanguages);
  return sideBySide;
}

std::u16string MoodleTexts::Read(pugi::xml_node element, ExchangedQuestion& question) const {
  MoodleFiles files(element, tools_);
  HtmlReading reading(tools_, [&files](std::u16string_view address) { return files.Find(address); });
  std::u16string text =
      reading.Take(ReadAs(ValueOf(element, "format"), ContentOfChild(element, "text")), question);
  files.TakeRest(question);
  return text;
}

std::u16string MoodleTexts::ReadPart(pugi::xml_node element, ExchangedQuestion& question) const {
  const std::size_t first = question.files.size();
  std::u16string text = Read(element, question);
  return TextOfPart(std::move(text), question, first, tools_.notes);
}

std::u16string MoodleTexts::ReadCloze(pugi::xml_node element, ExchangedQuestion& question) const {
  std::u16string source = ContentOfChild(element, "text");
  if (auto sideBySide = InOneLanguage(source)) source = std::move(*sideBySide);
  quorvantis::ReadCloze cloze = ReadClozeHtml(source, tools_.notes);
  question.blanks = std::move(cloze.blanks);
  if (!question.blanks.empty()) question.score = cloze.score;
  MoodleFiles files(element, tools_);
  HtmlReading reading(tools_, [&files](std::u16string_view address) { return files.Find(address); });
  std::u16string text = reading.Read(cloze.html, question);
  files.TakeRest(question);
  return text;
}

ReadMarkup MoodleTexts::ReadAlone(pugi::xml_node element) const {
  ReadMarkup read = ReadAs(ValueOf(element, "format"), ContentOfChild(element, "text"));
  TellMarkupLosses(read.losses, tools_.notes);
  return read;
}

}  // namespace quorvantis
