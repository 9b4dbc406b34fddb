// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/main/controls/AnswerControls.h"
#include "desktop/main/controls/ExamControls.h"
#include "desktop/main/controls/QuestionControls.h"

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
