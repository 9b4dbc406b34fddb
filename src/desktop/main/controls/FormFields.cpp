// SPDX-License-Identifier: MIT
#include "desktop/main/controls/FormFields.h"

namespace quorvantis {
namespace {

template <class Field>
ShownField AsField(Field* field) {
  return {field, field};
}

}  // namespace

ShownField FieldShowing(FormField field, const ExamControls& exam, const QuestionControls& question,
                        const AnswerControls& answers) {
  switch (field) {
    case FormField::Title:
      return AsField(exam.title);
    case FormField::Text:
      return AsField(question.text);
    case FormField::Answer:
      return AsField(answers.answer);
    case FormField::Essay:
      return AsField(answers.essay);
    default:
      return AsField(
          answers.options[static_cast<std::size_t>(field) - static_cast<std::size_t>(FormField::OptionA)]);
  }
}

}  // namespace quorvantis
