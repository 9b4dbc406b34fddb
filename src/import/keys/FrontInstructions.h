// SPDX-License-Identifier: MIT
#pragma once

#include "import/paper/PaperOutline.h"

#include <cstddef>
#include <string_view>

namespace quorvantis {

/// How many of the first questions may be numbered instructions, "1. Answer all questions.": those before the
/// numbers begin anew, if none of them has options, an answer, a blank or a question mark, but most of those
/// behind them have options.
std::size_t NumberedInFront(std::u16string_view text, const PaperOutline& outline);

/// Whether a text ends with a heading for instructions, within its last lines.
bool AnnouncesInstructions(std::u16string_view front);

}  // namespace quorvantis
