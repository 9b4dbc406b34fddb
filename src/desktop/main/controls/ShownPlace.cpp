// SPDX-License-Identifier: MIT
#include "desktop/main/controls/ShownPlace.h"

#include "desktop/main/controls/FormFields.h"

#include <optional>

namespace quorvantis {
namespace {

std::optional<FormField> FieldOf(const TextPlace& place) {
  switch (place.field) {
    case ExamFieldName::Title:
      return FormField::Title;
    case ExamFieldName::QuestionText:
      return FormField::Text;
    case ExamFieldName::Options:
      return OptionField(place.index);
    case ExamFieldName::FillInAnswer:
      return FormField::Answer;
    case ExamFieldName::EssayAnswer:
      return FormField::Essay;
    default:
      return std::nullopt;
  }
}

}  // namespace

ExamField* ShowPlace(const TextPlace& place, ExamEditor& editor, const ExamFormControls& controls) {
  const int question = place.question;
  if (question != 0 && question != editor.state.CurrentQuestion()) editor.questions.GoTo(question);
  if (place.field == ExamFieldName::AttachmentName) {
    AttachmentListBox* list = question == 0 ? controls.exam.attachments : controls.question.attachments;
    list->setFocus();
    list->setCurrentRow(static_cast<int>(place.index));
    return nullptr;
  }
  if (place.field == ExamFieldName::AnswerLetters && question != 0) {
    controls.answers.boxes.front()->setFocus();
    return nullptr;
  }
  const std::optional<FormField> field = FieldOf(place);
  const bool isThere = field && (question != 0 || *field == FormField::Title);
  if (!isThere) return nullptr;
  const ShownField shown = FieldShowing(*field, controls.exam, controls.question, controls.answers);
  shown.widget->setFocus();
  return shown.field;
}

}  // namespace quorvantis
