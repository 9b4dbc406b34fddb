// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// The letter of option `index` (0 to 4): "A" to "E".
constexpr char16_t OptionLetter(std::size_t index) {
  return static_cast<char16_t>(u'A' + index);
}

/// The index of the option with that letter, in either case; nothing for any other character.
std::optional<std::size_t> OptionIndex(char16_t letter);

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
