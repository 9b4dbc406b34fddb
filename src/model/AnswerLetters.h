// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// The answer mask of a letter string: 16 for each "a" (or "A"), 8 for "b", 4 for "c", 2 for "d", 1 for "e";
/// other characters add nothing. Repeated letters add up on purpose ("aa" gives 32): the window shows such a
/// mask as a grey box A.
int AnswerLettersToMask(std::u16string_view letters);

/// The letters of the ticked boxes of `mask` (0 to 31), in order.
std::u16string AnswerMaskToLetters(int mask);

/// The weight of box `index` (0 for A to 4 for E) in an answer mask.
constexpr int AnswerBoxWeight(std::size_t index) {
  return 16 >> index;
}

}  // namespace quorvantis
