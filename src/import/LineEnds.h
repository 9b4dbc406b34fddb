// SPDX-License-Identifier: MIT
// The line ends of imported texts. Word processors end lines with a single CR or VT, text files of many
// systems with a single LF; an exam ends them with CR LF, and pages drop a character after any other.
#pragma once

#include "model/ExamPaper.h"

#include <string>
#include <string_view>

namespace quorvantis {

/// Whether a page would drop a character of this text.
bool HasLoneLineEnd(std::u16string_view text);

/// `text` with CR LF for each single CR, LF or VT.
std::u16string WithWholeLineEnds(std::u16string_view text);

/// The number of questions from `first` to `last` with a lone line end in a text.
int CountLoneLineEnds(const ExamPaper& exam, int first, int last);

/// Fixes the texts of these questions, except those that would become too long for their field.
void MendLineEnds(ExamPaper& exam, int first, int last);

}  // namespace quorvantis
