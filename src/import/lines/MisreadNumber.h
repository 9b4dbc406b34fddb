// SPDX-License-Identifier: MIT
#pragma once

#include "text/TextSpan.h"

#include <string_view>

namespace quorvantis {

/// A label at the beginning of a line that a person or a scanner has written for `number`: "l." for 1, "Z)"
/// for 2, "3," or "1O.". With what ends it, without the blanks behind. Empty, at the line's first character,
/// if there is none.
TextSpan MisreadNumberAt(std::u16string_view text, TextSpan line, int number);

}  // namespace quorvantis
