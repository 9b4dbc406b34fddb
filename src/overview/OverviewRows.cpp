// SPDX-License-Identifier: MIT
#include "overview/OverviewRows.h"

#include "model/AnswerLetters.h"
#include "model/FillInAnswers.h"
#include "regex/LetterCase.h"
#include "scoring/ScoreSegments.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

namespace quorvantis {
namespace {

constexpr std::size_t kLongestLine = 250;
constexpr std::u16string_view kBlanks = u" \t\r\n\v\f\u00A0\u3000";
constexpr std::u16string_view kBetweenAnswers = u" / ";

/// The first line that is not blank, on one line of a table.
std::u16string FirstLine(std::u16string_view text) {
  const std::size_t begin = text.find_first_not_of(kBlanks);
  if (begin == text.npos) return {};
  text.remove_prefix(begin);
  text = text.substr(0, text.find_first_of(u"\r\n"));
  text = text.substr(0, text.find_last_not_of(kBlanks) + 1);
  if (text.size() > kLongestLine) {
    text = text.substr(0, kLongestLine - (IsLowSurrogate(text[kLongestLine]) ? 1 : 0));
  }
  std::u16string line(text);
  std::ranges::replace_if(
      line, [](char16_t unit) { return unit < 0x20 || unit == 0x7F; }, u' ');
  return line;
}

std::u16string LettersKey(std::u16string_view letters) {
  std::u16string key;
  for (const char16_t letter : letters) {
    const auto option = OptionIndex(letter);
    if (!option) continue;
    if (!key.empty()) key += u' ';
    key += OptionLetter(*option);
  }
  return key;
}

std::u16string AnswersKey(std::u16string_view answers) {
  std::u16string key;
  for (const TextSpan& span : FillInAnswersIn(answers)) {
    const std::u16string answer = FirstLine(span.Of(answers));
    if (!answer.empty()) key.append(key.empty() ? u"" : kBetweenAnswers).append(answer);
  }
  return key;
}

std::u16string KeyOf(const ExamQuestion& question) {
  const AnswerParts parts = AnswerOf(question.kind);
  if (parts.options) return LettersKey(question.answerLetters);
  if (parts.fillIn) return AnswersKey(question.answerText);
  if (parts.essay) return FirstLine(question.essayAnswer);
  return {};
}

bool LacksOptions(const ExamQuestion& question) {
  std::size_t written = 0;
  std::size_t last = 0;  // index after the last one with a text
  for (std::size_t i = 0; i < kOptionCount; ++i) {
    if (FirstLine(question.options[i]).empty()) {
      const auto isTicked = [i](char16_t letter) { return OptionIndex(letter) == i; };
      if (std::ranges::any_of(question.answerLetters, isTicked)) return true;
    } else {
      ++written;
      last = i + 1;
    }
  }
  return written < 2 || written < last;
}

bool HasContent(const FrameSetExam& exam, const std::u16string& path) {
  std::error_code ignored;
  return !exam.pathsWithoutContent.contains(path) &&
         std::filesystem::is_regular_file(TextToPath(path), ignored);
}

void CountFiles(const FrameSetExam& exam, const ExamQuestion& question, OverviewRow& row) {
  for (const std::u16string& path : question.attachmentPaths) {
    if (path.empty()) continue;
    ++row.files;
    row.missing.files = row.missing.files || !HasContent(exam, path);
  }
}

OverviewRow RowOf(const OverviewSource& source, int number) {
  const ExamQuestion& question = source.Question(number);
  const AnswerParts parts = AnswerOf(question.kind);
  OverviewRow row{number, question.kind, FirstLine(question.text), KeyOf(question)};
  row.missing.text = row.firstLine.empty();
  row.missing.key = row.key.empty() && (parts.options || parts.fillIn || parts.essay);
  row.missing.options = parts.options && LacksOptions(question);
  CountFiles(source.exam, question, row);
  return row;
}

/// Scores in the order of the questions, as long as they are asked for in that order.
class ScoresInOrder {
 public:
  explicit ScoresInOrder(const OverviewSource& source) {
    if (source.exam.scoreMode == ScoreMode::Custom)
      segments_ = SegmentsOf(DistributionOf(source.exam), std::max(source.lastQuestion, source.editedNumber));
  }

  std::optional<float> ScoreOf(int number) {
    while (at_ < segments_.size() && segments_[at_].last < number) ++at_;
    return at_ < segments_.size() ? std::optional(segments_[at_].score) : std::nullopt;
  }

 private:
  std::vector<ScoreSegment> segments_;
  std::size_t at_ = 0;
};

std::u16string Folded(std::u16string_view text) {
  std::u16string folded(text);
  for (char16_t& unit : folded) unit = FoldCase(unit);
  return folded;
}

bool Contains(const ExamQuestion& question, const std::u16string& folded) {
  const auto holds = [&folded](std::u16string_view text) { return Folded(text).find(folded) != folded.npos; };
  if (holds(question.text)) return true;
  const AnswerParts parts = AnswerOf(question.kind);
  return (parts.options && std::ranges::any_of(question.options, holds)) ||
         (parts.fillIn && holds(question.answerText)) || (parts.essay && holds(question.essayAnswer));
}

bool Passes(const OverviewRow& row, const OverviewFilter& filter) {
  return (!filter.kind || row.kind == *filter.kind) && (!filter.withoutKey || row.missing.key) &&
         (!filter.withFiles || row.files > 0);
}

}  // namespace

std::vector<OverviewRow> OverviewRows(const OverviewSource& source, const OverviewFilter& filter) {
  std::vector<OverviewRow> rows;
  ScoresInOrder scores(source);
  const std::u16string text = Folded(filter.text);
  const auto add = [&](int number) {
    OverviewRow row = RowOf(source, number);
    row.score = scores.ScoreOf(number);
    if (Passes(row, filter) && (text.empty() || Contains(source.Question(number), text)))
      rows.push_back(std::move(row));
  };
  for (int number = 1; number <= source.lastQuestion; ++number) add(number);
  if (source.editedNumber > source.lastQuestion) add(source.editedNumber);
  return rows;
}

}  // namespace quorvantis
