// SPDX-License-Identifier: MIT
#pragma once

#include "import/paper/PaperText.h"

#include <string_view>
#include <vector>

namespace quorvantis {

/// A blank that pupils fill in, in a form that is not "___".
struct FoundBlank {
  TextSpan span;
  std::u16string_view with;  ///< what says the same: "___", set off where the blank has set off words
};

/// The blanks in a part of a text, which is about one question and begins behind its number: brackets around
/// nothing, dots, boxes, underlined or wide blanks, short lines. Boxes to tick, dots that lead to points,
/// empty lines to write on and dots of prose are none.
std::vector<FoundBlank> BlanksIn(const PaperText& text, TextSpan body);

}  // namespace quorvantis
