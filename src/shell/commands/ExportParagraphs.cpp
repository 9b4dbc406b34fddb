// SPDX-License-Identifier: MIT
#include "shell/commands/ExportParagraphs.h"

#include "model/QuestionKinds.h"
#include "platform/texts/ProgramTexts.h"
#include "text/NumberText.h"

namespace quorvantis {
namespace {

using Paragraphs = std::vector<std::u16string>;

/// Deliberate: an unused range is all zeros and counts as one that begins before the last question. Readers
/// of the document see that the exam has it.
bool IsExported(int scoreFrom, int questionCount) {
  return scoreFrom <= questionCount;
}

void AppendScores(Paragraphs& paragraphs, const ExamPaper& exam, const StringTable& strings) {
  paragraphs.push_back(strings.Text(text_id::kScoreDistribution));
  if (HasOneScore(exam.scoreMode)) {
    paragraphs.push_back(strings.Text(text_id::kSameScores));
    return;
  }
  const std::u16string question = strings.Text(text_id::kQuestion);
  const std::u16string score = strings.Text(text_id::kScore);
  for (std::size_t i = 0; i < kScoreRanges; ++i) {
    if (!IsExported(exam.scoreFrom[i], exam.questionCount)) continue;
    paragraphs.push_back(question + FormatInteger(exam.scoreFrom[i]) + u"-----" + question +
                         FormatInteger(exam.scoreTo[i]) + u"," + score + FormatScore(exam.scoreValue[i]));
  }
}

void AppendQuestion(Paragraphs& paragraphs, const ExamQuestion& question, int number,
                    const StringTable& strings) {
  if (!question.text.empty()) {
    paragraphs.push_back(FormatInteger(number) + u"." + question.text);
    if (AnswerOf(question.kind).oral) paragraphs.push_back(strings.Text(text_id::kOralSubject));
  }
  char16_t letter = u'A';
  for (const std::u16string& option : question.options) {
    if (!option.empty()) paragraphs.push_back(letter + (u". " + option));
    ++letter;
  }
  for (const std::u16string& answer : {question.answerText, question.essayAnswer}) {
    if (!answer.empty()) paragraphs.push_back(answer);
  }
}

}  // namespace

Paragraphs ExportParagraphs(const ExamPaper& exam, const StringTable& strings) {
  Paragraphs paragraphs{exam.title};
  AppendScores(paragraphs, exam, strings);
  for (int n = 1; n <= exam.questionCount; ++n) AppendQuestion(paragraphs, exam.Question(n), n, strings);
  return paragraphs;
}

}  // namespace quorvantis
