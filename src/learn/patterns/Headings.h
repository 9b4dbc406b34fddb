// SPDX-License-Identifier: MIT
#pragma once

#include "import/paper/PaperOutline.h"

#include <set>
#include <string>
#include <vector>

namespace quorvantis {

/// A line between questions that is part of none.
struct HeadingLine {
  TextSpan line;
  std::u16string pattern;  ///< for the rule "Title", of the whole line
};

/// The headings of sections and the instructions below them, behind the last option or answer of a question.
std::vector<HeadingLine> FindHeadings(const PaperText& text, const PaperOutline& outline);

/// Instructions that are numbered as questions are, in front of the first one, below a line that announces
/// them unless `areMarked`.
std::vector<HeadingLine> FindNumberedInstructions(const PaperText& text, const PaperOutline& outline,
                                                  bool areMarked);

/// A pattern for lines like this one: a number of a section or a word like "Part" with anything behind it, or
/// else just this line.
std::u16string HeadingPattern(std::u16string_view line);

}  // namespace quorvantis
