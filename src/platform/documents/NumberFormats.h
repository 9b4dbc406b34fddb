// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// A number as a list shows it. `format` is the name that documents use ("upperRoman"). Numbers that a format
/// cannot show, and unknown formats, yield decimal digits.
std::u16string FormatListNumber(int number, std::string_view format);

}  // namespace quorvantis
