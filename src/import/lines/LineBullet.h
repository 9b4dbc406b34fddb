// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace quorvantis {

/// The size of the bullet or the box to tick that a line begins with, without the blanks behind it; 0 if
/// there is none. The line has no blanks at its beginning. "-3" is a number.
std::size_t BulletSize(std::u16string_view line);

/// The size of the box to tick that a text begins with, empty or ticked: "☐", "☑", "○", "( )", "[x]"; 0 if
/// there is none.
std::size_t BoxSize(std::u16string_view text);

/// What a box, or a bullet, shows: the sign in brackets, a blank for an empty pair of them, or the character
/// itself. `bullet` is not empty.
char16_t SignOfBullet(std::u16string_view bullet);

/// Whether what a box shows means that it is not ticked.
bool IsEmptyBox(char16_t sign);

}  // namespace quorvantis
