// SPDX-License-Identifier: MIT
// What steps put in or write anew.
#pragma once

#include "import/paper/PaperText.h"

namespace quorvantis {

/// Characters in place of a part of a text: one by one they keep the emphasis and the origins of those that
/// they replace; what is longer is put in.
PaperText Rewritten(const PaperText& text, TextSpan span, std::u16string_view with);

/// The line end that the text uses near `place`: CR, LF or CR LF. CR if there is none.
std::u16string_view LineEndNear(std::u16string_view text, std::size_t place);

/// A line, with the line end after it if there is one, or else with the one before it: what must go so that
/// nothing of the line stays.
TextSpan WithLineEnd(std::u16string_view text, TextSpan line);

}  // namespace quorvantis
