// SPDX-License-Identifier: MIT
#include "model/ExamPaper.h"

#include "model/ExamFields.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// Responses, attachments and the oral flag stay with the slot when questions are inserted or deleted: the
/// attachment lists move by their own rules (see editor/AttachmentShifts.h).
constexpr bool Moves(ExamFieldName field) {
  return field != ExamFieldName::OralFlag;
}

void CopyMovableFields(const ExamQuestion& from, ExamQuestion& to) {
  const auto copy = [](const FieldRow& field, const auto& value, auto& target) {
    if (Moves(field.name)) target = value;
  };
  VisitQuestionFields(copy, from, to);
}

void ClearAnswersAndTexts(ExamQuestion& question) {
  const auto clear = [](const FieldRow& field, auto& value) {
    if (Moves(field.name) && field.name != ExamFieldName::Kind) value = {};
  };
  VisitQuestionFields(clear, question);
}

bool IsCounted(const ExamQuestion& question) {
  return HoldsText(question.text) || HoldsText(question.answerText) || HoldsText(question.options);
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
