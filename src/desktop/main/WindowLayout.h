// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/main/AnswerControls.h"
#include "desktop/main/ExamControls.h"
#include "desktop/main/QuestionArea.h"
#include "desktop/main/QuestionControls.h"
#include "desktop/main/ToolbarButtons.h"
#include "desktop/main/WarningNotice.h"
#include "desktop/main/WindowScroll.h"
#include "platform/DebugOutput.h"

namespace quorvantis {

/// Everything that the window shows but its scroll bars. All are children of the window itself, in whose
/// coordinates they are placed.
struct WindowControls {
  ToolbarButtons& toolbar;
  ExamControls& exam;
  QuestionArea* questionArea;
  QuestionControls& question;
  AnswerControls& answers;
  WarningNotice* notice;
};

/// Gives every control of the window that `scroll` scrolls its place for the state that `editor` is in;
/// mirrored, where the window runs from right to left. Names the buttons of the toolbar that are out of use
/// on `debug`.
void PlaceControls(WindowScroll& scroll, const WindowControls& controls, const ExamEditor& editor,
                   DebugOutput& debug);

/// Gives the main window the size limits of the screen that it is on.
void LimitSize(QWidget& window);

/// Gives it the size that it starts with, too.
void SetFirstSize(QWidget& window);

/// The Tab key walks along the rows of the window, from top to bottom.
void SetTabOrder(const WindowControls& controls);

}  // namespace quorvantis
