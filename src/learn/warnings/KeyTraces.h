// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// What looks like a key or a part of one in a text that pupils will see, whatever stands around it: "1b – 2c
/// – 3a", "Key: BCA", "four   Answer: B". Empty if nothing does.
std::u16string KeyTrace(std::u16string_view text);

/// The first three or more numbers in a row with a letter each, as in "1b – 2c – 3a"; empty if there are
/// none.
std::u16string NumberedLetters(std::u16string_view text);

}  // namespace quorvantis
