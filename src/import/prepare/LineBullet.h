// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace quorvantis {

/// The size of the bullet or the box to tick that a line begins with, without the blanks behind it; 0 if
/// there is none. The line has no blanks at its beginning. "-3" is a number.
std::size_t BulletSize(std::u16string_view line);

}  // namespace quorvantis
