// SPDX-License-Identifier: MIT
#include "exchange/Formats.h"

#include "exchange/canvas/CanvasFormat.h"
#include "exchange/gift/GiftFormat.h"
#include "exchange/moodle/MoodleXml.h"
#include "exchange/plain/AikenFormat.h"
#include "exchange/plain/MarkdownWriter.h"
#include "exchange/qti/QtiFormat.h"
#include "exchange/table/TableFormat.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/AsciiCase.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis {
namespace {

template <class Reader>
std::unique_ptr<FormatReader> NewReader() {
  return std::make_unique<Reader>();
}

template <class Writer>
std::unique_ptr<FormatWriter> NewWriter() {
  return std::make_unique<Writer>();
}

std::unique_ptr<FormatWriter> NewCommaWriter() {
  return std::make_unique<TableWriter>(u',');
}

std::unique_ptr<FormatWriter> NewTabWriter() {
  return std::make_unique<TableWriter>(u'\t');
}

constexpr HeldParts kTableParts{.severalRight = true,
                                .noneRight = true,
                                .fillIn = true,
                                .severalBlanks = true,
                                .emptyBlanks = true,
                                .essay = true,
                                .modelAnswer = true,
                                .oral = true,
                                .unanswered = true,
                                .noText = true,
                                .scores = true};

constexpr HeldParts kAllParts{.severalRight = true,
                              .noneRight = true,
                              .fillIn = true,
                              .equalAnswers = false,
                              .severalBlanks = true,
                              .essay = true,
                              .modelAnswer = true,
                              .oral = true,
                              .noText = true,
                              .files = true,
                              .scores = true,
                              .title = true,
                              .shuffle = true};

/// Its importer ends at a question that it does not take.
constexpr HeldParts kMoodleParts = [] {
  HeldParts parts = kAllParts;
  parts.fewestOptions = 2;
  parts.noneRight = false;
  parts.equalAnswers = true;
  parts.blankScores = false;
  parts.fileNames = false;
  return parts;
}();

const FormatRow kFormats[] = {
    {.name = "moodle",
     .otherNames = "moodlexml moodle-xml moodle_xml xml",
     .title = text_id::kFormatMoodle,
     .purpose = text_id::kFormatMoodlePurpose,
     .extension = "xml",
     .extensionIsItsOwn = true,
     .held = kMoodleParts,
     .recognises = LooksLikeMoodleXml,
     .reader = NewReader<MoodleXmlReader>,
     .writer = NewWriter<MoodleXmlWriter>},
    {.name = "qti",
     .otherNames = "qti2 qti21 qti2.1 imsqti",
     .title = text_id::kFormatQti,
     .purpose = text_id::kFormatQtiPurpose,
     .extension = "zip",
     .held = kAllParts,
     .recognises = LooksLikeQti,
     .reader = NewReader<QtiReader>,
     .writer = NewWriter<QtiWriter>},
    {.name = "canvas",
     .otherNames = "qti1 qti12 qti1.2 imscc",
     .title = text_id::kFormatCanvas,
     .purpose = text_id::kFormatCanvasPurpose,
     .extension = "zip",
     .held = kAllParts,
     .recognises = LooksLikeCanvas,
     .reader = NewReader<CanvasReader>,
     .writer = NewWriter<CanvasWriter>},
    {.name = "aiken",
     .title = text_id::kFormatAiken,
     .purpose = text_id::kFormatAikenPurpose,
     .extension = "aiken",
     .extensionIsItsOwn = true,
     .held = {.texts = HeldText::OneLine, .fewestOptions = 2, .misreads = IsNoAikenText},
     .recognises = LooksLikeAiken,
     .reader = NewReader<AikenReader>,
     .writer = NewWriter<AikenWriter>},
    {.name = "csv",
     .otherNames = "table",
     .title = text_id::kFormatCsv,
     .purpose = text_id::kFormatCsvPurpose,
     .extension = "csv",
     .extensionIsItsOwn = true,
     .held = kTableParts,
     .recognises = LooksLikeTable,
     .beginsLikeNoOther = true,
     .reader = NewReader<TableReader>,
     .writer = NewCommaWriter},
    {.name = "tsv",
     .otherNames = "tab tabs",
     .title = text_id::kFormatTsv,
     .purpose = text_id::kFormatTsvPurpose,
     .extension = "tsv",
     .extensionIsItsOwn = true,
     .held = kTableParts,
     .recognises = LooksLikeTabTable,
     .beginsLikeNoOther = true,
     .reader = NewReader<TableReader>,
     .writer = NewTabWriter},
    {.name = "gift",
     .title = text_id::kFormatGift,
     .purpose = text_id::kFormatGiftPurpose,
     .extension = "gift",
     .extensionIsItsOwn = true,
     .held = {.fewestOptions = 2,
              .severalRight = true,
              .fillIn = true,
              .arrows = false,
              .essay = true,
              .modelAnswer = true,
              .title = true},
     .recognises = LooksLikeGift,
     .reader = NewReader<GiftReader>,
     .writer = NewWriter<GiftWriter>},
    {.name = "markdown",
     .otherNames = "md",
     .title = text_id::kFormatMarkdown,
     .purpose = text_id::kFormatMarkdownPurpose,
     .extension = "md",
     .extensionIsItsOwn = true,
     .held = {.texts = HeldText::PlainLines,
              .severalRight = true,
              .noneRight = true,
              .fillIn = true,
              .severalBlanks = true,
              .essay = true,
              .modelAnswer = true,
              .oral = true,
              .unanswered = true,
              .noText = true,
              .scores = true,
              .title = true},
     .recognises = LooksLikeMarkdown,
     .beginsLikeNoOther = true,
     .writer = NewWriter<MarkdownWriter>},
};

}  // namespace

std::span<const FormatRow> Formats() {
  return kFormats;
}

const FormatRow* FormatNamed(std::string_view name) {
  const std::string wanted = Utf16ToUtf8(AsciiLower(Utf8ToUtf16(name)));
  const auto* const row = std::ranges::find_if(kFormats, [&wanted](const FormatRow& format) {
    const std::string names = " " + std::string(format.name) + " " + std::string(format.otherNames) + " ";
    return wanted.find(' ') == wanted.npos && names.find(" " + wanted + " ") != names.npos;
  });
  return row != std::end(kFormats) && !wanted.empty() ? row : nullptr;
}

const FormatRow* RecogniseFormat(const ExchangeSource& source) {
  for (const bool isFirst : {true, false}) {
    const auto* const row = std::ranges::find_if(kFormats, [&source, isFirst](const FormatRow& format) {
      return format.recognises != nullptr && format.beginsLikeNoOther == isFirst && format.recognises(source);
    });
    if (row != std::end(kFormats)) return row;
  }
  return nullptr;
}

const FormatRow* FormatForFile(const std::filesystem::path& file) {
  const std::string extension = Utf16ToUtf8(ExtensionOrNothing(PathToText(file.filename())));
  const auto* const row = std::ranges::find_if(kFormats, [&extension](const FormatRow& format) {
    return format.extensionIsItsOwn && format.extension == extension;
  });
  return row != std::end(kFormats) ? row : nullptr;
}

}  // namespace quorvantis
