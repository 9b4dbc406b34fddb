// SPDX-License-Identifier: MIT
#include "editor/QuestionForm.h"

#include "editor/AnswerList.h"
#include "model/AnswerLetters.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

/// Box A takes whatever a mask has above the others: 2 or more of it is a grey box.
std::array<CheckState, kOptionCount> ChecksFromMask(int mask) {
  std::array<CheckState, kOptionCount> checks;
  checks[0] = static_cast<CheckState>(std::clamp(mask / AnswerBoxWeight(0), 0, 2));
  for (std::size_t box = 1; box < kOptionCount; ++box) {
    checks[box] = (mask & AnswerBoxWeight(box)) != 0 ? CheckState::On : CheckState::Off;
  }
  return checks;
}

int MaskFromChecks(const std::array<CheckState, kOptionCount>& checks) {
  int mask = 0;
  for (std::size_t box = 0; box < kOptionCount; ++box) {
    if (checks[box] != CheckState::Off) mask += AnswerBoxWeight(box);
  }
  return mask;
}

}  // namespace

std::size_t MaxLength(FormField field) {
  switch (field) {
    case FormField::Title:
      return kMaxTitle;
    case FormField::Text:
      return kMaxQuestionText;
    case FormField::Answer:
      return kMaxFillInAnswer;
    case FormField::Essay:
      return kMaxEssayAnswer;
    default:
      return kMaxOptionText;
  }
}

const std::u16string& QuestionForm::Field(FormField field) const {
  switch (field) {
    case FormField::Title:
      return title;
    case FormField::Text:
      return text;
    case FormField::Answer:
      return answer;
    case FormField::Essay:
      return essay;
    default:
      return options[static_cast<std::size_t>(field) - static_cast<std::size_t>(FormField::OptionA)];
  }
}

std::u16string& QuestionForm::Field(FormField field) {
  return const_cast<std::u16string&>(std::as_const(*this).Field(field));
}

void LoadForm(const ExamQuestion& question, QuestionForm& form) {
  form.text = question.text;
  form.options = question.options;
  form.answer = question.answerText;
  form.essay = question.essayAnswer;
  form.checks = ChecksFromMask(question.answerMask);
}

void StoreForm(const QuestionForm& form, QuestionKind kind, ExamQuestion& question) {
  question.text = form.text;
  question.options = form.options;
  question.answerText = WithoutOpenSeparator(form.answer);
  question.essayAnswer = form.essay;
  question.kind = kind;
  question.answerMask = MaskFromChecks(form.checks);
  question.answerLetters = AnswerMaskToLetters(question.answerMask);
}

}  // namespace quorvantis
