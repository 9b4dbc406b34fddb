// SPDX-License-Identifier: MIT
// What a question looks like, whatever its number.
#pragma once

#include "import/paper/PaperText.h"

namespace quorvantis {

/// Whether a line ends in what options may follow: a question mark, a colon, dots, or a blank to fill in.
bool EndsAsStem(std::u16string_view line);

/// Whether a line ends in a question mark; marks of quotation and points may follow.
bool EndsInQuestionMark(std::u16string_view line);

/// Whether some lines ask for something: a question mark at the end of one, a blank to fill in, points, or a
/// word like "Explain" at the beginning.
bool AsksSomething(const PaperText& text, TextSpan lines);

}  // namespace quorvantis
