// SPDX-License-Identifier: MIT
#include "editor/QuestionForm.h"

#include "editor/AnswerList.h"
#include "model/AnswerLetters.h"
#include "model/ExamFields.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

/// Box A takes whatever a mask has above the other boxes; a value of 2 or more shows as grey.
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

ExamFieldName NameOf(FormField field) {
  switch (field) {
    case FormField::Title:
      return ExamFieldName::Title;
    case FormField::Text:
      return ExamFieldName::QuestionText;
    case FormField::OptionA:
    case FormField::OptionB:
    case FormField::OptionC:
    case FormField::OptionD:
    case FormField::OptionE:
      return ExamFieldName::Options;
    case FormField::Answer:
      return ExamFieldName::FillInAnswer;
    case FormField::Essay:
      return ExamFieldName::EssayAnswer;
  }
  return {};
}

/// The texts that both form and question have, in pairs.
template <class Form, class Question, class Take>
void PairTexts(Form& form, Question& question, Take take) {
  take(form.text, question.text);
  take(form.options, question.options);
  take(form.answer, question.answerText);
  take(form.essay, question.essayAnswer);
}

}  // namespace

std::size_t MaxLength(FormField field) {
  return FieldNamed(NameOf(field)).limit;
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
  PairTexts(form, question, [](auto& shown, const auto& stored) { shown = stored; });
  form.checks = ChecksFromMask(question.answerMask);
}

void StoreForm(const QuestionForm& form, QuestionKind kind, ExamQuestion& question) {
  PairTexts(form, question, [](const auto& shown, auto& stored) { stored = shown; });
  question.answerText = WithoutOpenSeparator(form.answer);
  question.kind = kind;
  question.answerMask = MaskFromChecks(form.checks);
  question.answerLetters = AnswerMaskToLetters(question.answerMask);
}

}  // namespace quorvantis
