// SPDX-License-Identifier: MIT
#include "model/ExamPaper.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// The fields that move when questions are inserted or deleted. Responses, attachments and the oral flag stay
/// with the slot: the attachment lists are moved by rules of their own (see editor/AttachmentShifts.h).
void CopyMovableFields(const ExamQuestion& from, ExamQuestion& to) {
  to.text = from.text;
  to.options = from.options;
  to.answerLetters = from.answerLetters;
  to.answerText = from.answerText;
  to.essayAnswer = from.essayAnswer;
  to.kind = from.kind;
  to.answerMask = from.answerMask;
}

void ClearAnswersAndTexts(ExamQuestion& question) {
  question.text.clear();
  for (auto& option : question.options) option.clear();
  question.answerLetters.clear();
  question.answerText.clear();
  question.essayAnswer.clear();
  question.answerMask = 0;
}

bool IsCounted(const ExamQuestion& question) {
  const auto filled = [](const std::u16string& text) { return !text.empty(); };
  return filled(question.text) || filled(question.answerText) ||
         std::ranges::any_of(question.options, filled);
}

}  // namespace

ExamPaper::ExamPaper() : questions(kQuestionSlots), questionState(kQuestionSlots) {
  SetRenderOption(1);
  Reset();
}

void ExamPaper::Reset() {
  randomMode = RandomMode::Off;
  questionCount = 0;
  title.clear();
  std::ranges::fill(questionState, 0);
  for (int n = 1; n <= kMaxQuestions; ++n) {
    ExamQuestion& question = Question(n);
    ClearAnswersAndTexts(question);
    question.responseText.clear();
    question.responseValue = 0;
    question.kind = QuestionKind::Choice;
    question.attachmentPaths.fill({});
    question.attachmentNames.fill({});
  }
  scoreMode = ScoreMode::Same;
  for (std::size_t i = 0; i < kScoreRanges; ++i) {
    scoreFrom[i] = static_cast<int>(10 * i + 1);
    scoreTo[i] = static_cast<int>(10 * i + 10);
    scoreValue[i] = 1.0F;
  }
}

void ExamPaper::DeleteQuestion(int n) {
  if (!IsQuestionNumber(n)) return;
  for (int slot = n + 1; slot <= kMaxQuestions; ++slot) CopyMovableFields(Question(slot), Question(slot - 1));
  ClearAnswersAndTexts(Question(kMaxQuestions));
}

void ExamPaper::InsertQuestion(int n) {
  if (n < 0 || n >= kMaxQuestions) return;
  for (int slot = kMaxQuestions - 1; slot >= n; --slot) CopyMovableFields(Question(slot), Question(slot + 1));
  ClearAnswersAndTexts(Question(n));
  Question(n).kind = QuestionKind::Choice;
}

int ExamPaper::LastCountedQuestion() const {
  int last = kMaxQuestions;
  while (last > 0 && !IsCounted(Question(last))) --last;
  return last;
}

void ExamPaper::SetRenderOption(int option) {
  renderOption = option;
  pageRenderer.SetRenderOption(option);
}

void ExamPaper::SetHostMode(int mode) {
  locationMode = 1;
  randomMode = RandomMode::Off;
  hostMode = mode;
}

}  // namespace quorvantis
