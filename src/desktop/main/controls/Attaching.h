// SPDX-License-Identifier: MIT
// Attaching in the window: the editor's commands, and a message if a file has been attached without its
// content because it could not be copied.
#pragma once

#include "editor/ExamEditor.h"

#include <filesystem>
#include <vector>

namespace quorvantis {

/// Lets the user choose a file.
void AttachToExam(ExamEditor& editor);
void AttachToQuestion(ExamEditor& editor);

/// Attaches files by their full paths. One message stands for all that could not be copied: they usually fail
/// for one reason.
void AttachToQuestion(ExamEditor& editor, const std::vector<std::filesystem::path>& files);

}  // namespace quorvantis
