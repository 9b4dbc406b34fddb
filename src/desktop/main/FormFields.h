// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/main/AnswerControls.h"
#include "desktop/main/ExamControls.h"
#include "desktop/main/QuestionControls.h"

namespace quorvantis {

/// A text field of the window, as a field and as a widget.
struct ShownField {
  ExamField* field;
  QWidget* widget;
};

/// The field of the window that shows a text of the form.
ShownField FieldShowing(FormField field, const ExamControls& exam, const QuestionControls& question,
                        const AnswerControls& answers);

}  // namespace quorvantis
