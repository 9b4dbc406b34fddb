// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// A text reduced to what two forms of it have in common, one of which was read from a printed file: without
/// blanks, line ends, control characters, soft hyphens and marks of direction; ligatures as their letters;
/// both brackets of a pair as the first, since they are mirrored in texts from right to left; and the letters
/// of each run of the Arabic letters lam and alef sorted, since readers of files swap those of a ligature.
std::u16string ComparableText(std::u16string_view text);

}  // namespace quorvantis
