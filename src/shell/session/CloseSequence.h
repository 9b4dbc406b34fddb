// SPDX-License-Identifier: MIT
#pragma once

#include "editor/ExamEditor.h"
#include "model/document/FrameSetExam.h"
#include "shell/office/OfficeControl.h"

namespace quorvantis {

/// Removes what an editor leaves behind: the unpacked files of the exam that was open, the folder of attached
/// files with all its content, and then what the office suite was told about the application folder (`office`
/// may be null). Runs when the editor ends, however it ends. Failures are ignored.
void RunCloseSequence(ExamEditor& editor, OfficeControl* office);

}  // namespace quorvantis
