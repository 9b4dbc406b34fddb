// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/AnswerControls.h"
#include "desktop/ExamControls.h"
#include "desktop/FileButtons.h"
#include "desktop/QuestionControls.h"

#include <QGroupBox>
#include <QWidget>

namespace quorvantis {

/// Everything that the window shows.
struct WindowControls {
  FileButtons& files;
  ExamControls& exam;
  QGroupBox* questionArea;
  QuestionControls& question;
  AnswerControls& answers;
};

/// Gives every control its place in `window`, where it stays however the window is resized and whichever
/// controls are hidden, and puts them in the order of the Tab key. Question and answers get the room that
/// there is.
void ArrangeWindow(QWidget* window, const WindowControls& controls);

}  // namespace quorvantis
