// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/main/WindowScroll.h"
#include "desktop/main/controls/AnswerControls.h"
#include "desktop/main/controls/ExamControls.h"
#include "desktop/main/controls/QuestionArea.h"
#include "desktop/main/controls/QuestionControls.h"
#include "desktop/main/controls/ToolbarButtons.h"
#include "desktop/main/controls/WindowNotice.h"
#include "platform/DebugOutput.h"

namespace quorvantis {

/// Everything that the client area of the window shows except its scroll bars. All are children of the client
/// area and placed in its coordinates.
struct WindowControls {
  ToolbarButtons& toolbar;
  ExamControls& exam;
  QuestionArea* questionArea;
  QuestionControls& question;
  AnswerControls& answers;
  WindowNotice* notice;
  WindowNotice* checkNotice;
  WindowNotice* printNotice;  ///< in front of both, for a moment
};

/// Places every control of the client area that `scroll` scrolls, for the current state of `editor`; mirrored
/// if it runs from right to left. Writes the names of disabled toolbar buttons to `debug`.
void PlaceControls(WindowScroll& scroll, const WindowControls& controls, const ExamEditor& editor,
                   DebugOutput& debug);

/// Limits the size of the main window, whose client area has its limits and a menu of `menuHeight` pixels
/// above it. The window is never larger than the screen that it is on.
void LimitSize(QWidget& window, int menuHeight);

/// Also gives it its initial size.
void SetFirstSize(QWidget& window, int menuHeight);

/// The Tab key goes through the window row by row, from top to bottom.
void SetTabOrder(const WindowControls& controls);

}  // namespace quorvantis
