// SPDX-License-Identifier: MIT
#include "render/sheets/KeyTable.h"

#include "model/AnswerLetters.h"
#include "model/FillInAnswers.h"
#include "model/QuestionKinds.h"
#include "scoring/ScoreSegments.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::u16string_view kBetweenAnswers = u" / ";

std::u16string KeyOf(const ExamQuestion& question) {
  const AnswerParts parts = AnswerOf(question.kind);
  if (parts.options) return KeyLetters(question.answerLetters);
  if (parts.fillIn) return FillInAnswersJoined(question.answerText, kBetweenAnswers);
  return parts.essay ? question.essayAnswer : std::u16string();
}

/// The word for a kind in files that programs read.
std::u16string WordOf(QuestionKind kind) {
  const quorvantis::KindRow* const row = FindKind(kind);
  return row == nullptr ? std::u16string() : Utf8ToUtf16(row->word);
}

bool IsPlainNumber(std::u16string_view text) {
  if (!text.empty() && (text.front() == u'-' || text.front() == u'+')) text.remove_prefix(1);
  const bool hasDigit = text.find_first_of(u"0123456789") != text.npos;
  return hasDigit && text.find_first_not_of(u"0123456789.") == text.npos &&
         std::ranges::count(text, u'.') <= 1;
}

/// Spreadsheets also look behind blanks at the front.
bool LooksLikeFormula(std::u16string_view text) {
  const std::size_t begin = text.find_first_not_of(u" \t\r\n\u00A0\uFEFF");
  if (begin == text.npos || IsPlainNumber(text.substr(begin))) return false;
  constexpr std::u16string_view kStarts = u"=+-@|\uFF1D\uFF0B\uFF0D\uFF20";
  return kStarts.find(text[begin]) != kStarts.npos || text.front() == u'\t' || text.front() == u'\r';
}

std::string CsvField(std::u16string_view text) {
  std::string field = (LooksLikeFormula(text) ? "'" : "") + Utf16ToUtf8(text);
  if (field.find_first_of("\",\r\n;\t") == std::string::npos) return field;
  for (std::size_t at = 0; (at = field.find('"', at)) != std::string::npos; at += 2) field.insert(at, 1, '"');
  return '"' + field + '"';
}

}  // namespace

std::u16string KeyLetters(std::u16string_view answerLetters) {
  std::u16string key;
  for (std::size_t i = 0; i < kOptionCount; ++i) {
    const auto isIt = [i](char16_t letter) { return OptionIndex(letter) == i; };
    if (std::ranges::none_of(answerLetters, isIt)) continue;
    if (!key.empty()) key += u' ';
    key += OptionLetter(i);
  }
  return key;
}

std::vector<KeyRow> KeyTable(const ExamPaper& exam) {
  std::vector<KeyRow> rows;
  for (int number = 1; number <= exam.questionCount; ++number) {
    const ExamQuestion& question = exam.Question(number);
    rows.push_back({number, question.kind, KeyOf(question), std::nullopt});
  }
  if (!HasScoreRanges(exam.scoreMode)) return rows;
  for (const ScoreSegment& segment : SegmentsOf(DistributionOf(exam), exam.questionCount)) {
    for (int number = segment.first; number <= segment.last; ++number)
      rows[static_cast<std::size_t>(number - 1)].score = segment.score;
  }
  return rows;
}

std::string CsvLine(const std::vector<std::u16string>& fields) {
  std::string line;
  for (const std::u16string& field : fields) line += (&field == fields.data() ? "" : ",") + CsvField(field);
  return line + "\r\n";
}

std::string KeyCsv(const std::vector<KeyRow>& rows) {
  std::string csv = std::string(kCsvStart) + CsvLine({u"question", u"kind", u"key", u"score"});
  for (const KeyRow& row : rows) {
    csv += CsvLine({FormatInteger(row.number), WordOf(row.kind), row.key,
                    row.score ? ShortScore(*row.score) : std::u16string()});
  }
  return csv;
}

std::u16string ShortScore(double score) {
  std::u16string text = FormatScore(score);
  if (text.find(u'.') == text.npos) return text;
  text.erase(text.find_last_not_of(u'0') + 1);
  if (text.ends_with(u'.')) text.pop_back();
  return text;
}

}  // namespace quorvantis
