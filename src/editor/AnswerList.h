// SPDX-License-Identifier: MIT
// The fill-in answer line: several answers separated by kListSeparator. A separator is open when only blanks
// follow it.
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// The line as it is stored: without an open separator at its end and the blanks after it.
std::u16string WithoutOpenSeparator(std::u16string_view line);

/// The line prepared for one more answer: it ends with a separator unless it is empty. A line of only blanks
/// becomes empty.
std::u16string WithOpenSeparator(std::u16string_view line);

}  // namespace quorvantis
