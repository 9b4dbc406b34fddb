// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/main/controls/AnswerControls.h"
#include "desktop/main/controls/ExamControls.h"
#include "desktop/main/controls/QuestionControls.h"
#include "editor/ExamEditor.h"
#include "model/document/ExamTexts.h"

namespace quorvantis {

/// The controls that show an exam.
struct ExamFormControls {
  ExamControls& exam;
  QuestionControls& question;
  AnswerControls& answers;
};

/// Shows a place of the exam: goes to its question and focuses what shows it, a field, a box or a list of
/// files. The field with its text, or null if it has none. Score ranges and other values without a control
/// only have their question shown.
ExamField* ShowPlace(const TextPlace& place, ExamEditor& editor, const ExamFormControls& controls);

}  // namespace quorvantis
