// SPDX-License-Identifier: MIT
// The fill-in answer line: several answers with kListSeparator between them. A separator is open when nothing
// but blanks follows it.
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// The line as it is stored: an open separator at its end is cut off with the blanks behind it.
std::u16string WithoutOpenSeparator(std::u16string_view line);

/// The line prepared for one more answer: it ends in a separator, unless it is empty. A line of blanks alone
/// becomes empty.
std::u16string WithOpenSeparator(std::u16string_view line);

}  // namespace quorvantis
