// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamPaper.h"

namespace quorvantis {

/// Whether a page of the exam runs from right to left: as most letters of its title, its counted questions
/// and their options do, tags left out. An exam without letters runs as the language of the program does.
bool RunsRightToLeft(const ExamPaper& exam, bool languageIsRightToLeft);

}  // namespace quorvantis
