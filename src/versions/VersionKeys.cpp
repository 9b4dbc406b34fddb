// SPDX-License-Identifier: MIT
#include "versions/VersionKeys.h"

#include "model/AnswerLetters.h"
#include "model/QuestionKinds.h"
#include "text/LineBreaks.h"
#include "text/NumberText.h"
#include "text/Utf.h"
#include "versions/QuestionScores.h"

#include <cstddef>
#include <utility>

namespace quorvantis {
namespace {

constexpr std::u16string_view kBetweenAnswers = u" | ";

std::u16string FillInKey(std::u16string_view answers) {
  std::u16string key;
  for (std::size_t at = 0; at <= answers.size();) {
    const std::size_t end = std::min(answers.find(kListSeparator, at), answers.size());
    if (at > 0) key += kBetweenAnswers;
    key += answers.substr(at, end - at);
    at = end + kListSeparator.size();
  }
  return key;
}

std::u16string KindWord(QuestionKind kind) {
  const KindRow* row = FindKind(kind);
  return row != nullptr ? Utf8ToUtf16(row->word) : FormatInteger(static_cast<int>(kind));
}

std::u16string ScoreText(std::optional<float> score) {
  return score ? FormatScore(*score) : std::u16string();
}

}  // namespace

std::u16string KeyText(const ExamQuestion& question) {
  std::u16string key;
  switch (question.kind) {
    case QuestionKind::Choice:
      for (std::size_t i = 0; i < kOptionCount; ++i) {
        if ((question.answerMask & AnswerBoxWeight(i)) != 0) key += OptionLetter(i);
      }
      break;
    case QuestionKind::FillIn:
      key = FillInKey(question.answerText);
      break;
    case QuestionKind::Essay:
      key = WithLineEnds(question.essayAnswer, u"\n");
      break;
    case QuestionKind::Oral:
      break;
  }
  return key;
}

std::vector<CsvRow> KeyTableOf(const ExamPaper& exam, const PlannedVersion& version) {
  std::vector<CsvRow> rows{{u"place", u"source", u"kind", u"key", u"score"}};
  const QuestionScores scores = ScoresOf(exam, static_cast<int>(version.questions.size()));
  for (std::size_t place = 1; place < scores.size(); ++place) {
    const auto number = static_cast<int>(place);
    const ExamQuestion& question = exam.Question(number);
    rows.push_back({FormatInteger(number), FormatInteger(version.questions[place - 1]),
                    KindWord(question.kind), KeyText(question), ScoreText(scores[place])});
  }
  return rows;
}

std::vector<CsvRow> CombinedKeys(const std::vector<ExamPaper>& exams, const VersionPlan& plan) {
  std::vector<CsvRow> rows{{u"source"}};
  for (std::size_t i = 0; i < plan.versions.size(); ++i) {
    const PlannedVersion& version = plan.versions[i];
    rows.front().insert(rows.front().end(), {version.name + u" place", version.name + u" key"});
    rows.resize(version.questions.size() + 1);
    for (std::size_t place = 0; place < version.questions.size(); ++place) {
      CsvRow& row = rows[static_cast<std::size_t>(version.questions[place])];
      const auto number = static_cast<int>(place) + 1;
      if (row.empty()) row.push_back(FormatInteger(version.questions[place]));
      row.insert(row.end(), {FormatInteger(number), KeyText(exams[i].Question(number))});
    }
  }
  return rows;
}

}  // namespace quorvantis
