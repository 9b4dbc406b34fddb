// SPDX-License-Identifier: MIT
#include "editor/QuestionForm.h"

#include <utility>

namespace quorvantis {

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

}  // namespace quorvantis
