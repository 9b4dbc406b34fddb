// SPDX-License-Identifier: MIT
// The line ends of imported texts. Word processors end lines with a single CR or VT, text files of many
// systems with a single LF; an exam ends them with CR LF, and pages leave out a character after any other.
#pragma once

#include "model/ExamPaper.h"

#include <string>
#include <string_view>

namespace quorvantis {

/// Whether a page of this text would leave out a character.
bool HasLoneLineEnd(std::u16string_view text);

/// `text` with CR LF in the place of each single CR, LF or VT.
std::u16string WithWholeLineEnds(std::u16string_view text);

/// How many of the questions from `first` to `last` have a text with a lone line end.
int CountLoneLineEnds(const ExamPaper& exam, int first, int last);

/// Mends the texts of these questions, except those that would become longer than their field takes.
void MendLineEnds(ExamPaper& exam, int first, int last);

}  // namespace quorvantis
