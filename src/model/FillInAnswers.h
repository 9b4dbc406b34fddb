// SPDX-License-Identifier: MIT
#pragma once

#include "text/TextSpan.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// The answers in the answer line of a fill-in question: what stands between its separators, even if that is
/// nothing. A line without separators is one answer.
std::vector<TextSpan> FillInAnswersIn(std::u16string_view line);

/// An answer line with something else between its answers.
std::u16string FillInAnswersJoined(std::u16string_view line, std::u16string_view between);

}  // namespace quorvantis
