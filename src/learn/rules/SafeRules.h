// SPDX-License-Identifier: MIT
// Rules written so that readers of such files give them back as they are.
#pragma once

#include "ini/ProfileValues.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace quorvantis {

/// In UTF-16 units.
inline constexpr std::size_t kLongestValue = kProfileStringBuffer - 1;

/// Whether a value is one line that begins and ends with nothing that readers of such files strip: blanks, a
/// pair of quotes, a ";" at the beginning.
bool IsSafeValue(std::u16string_view value);

/// A pattern that matches the same and is a safe value: "[ ]" for a blank at its begin or end, and so on. One
/// that cannot be written so, because of line breaks or quoted text, is given back as it is.
std::u16string SafePattern(std::u16string_view pattern);

}  // namespace quorvantis
