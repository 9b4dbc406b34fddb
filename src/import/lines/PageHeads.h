// SPDX-License-Identifier: MIT
#pragma once

#include "text/TextSpan.h"

#include <string_view>
#include <vector>

namespace quorvantis {

/// For each of the lines whether it is the head or foot of a page: a page number, a line that differs from
/// others in a rising page number alone, or one that is repeated beside such a line or after page breaks.
std::vector<bool> FindPageHeads(std::u16string_view text, const std::vector<TextSpan>& lines);

}  // namespace quorvantis
