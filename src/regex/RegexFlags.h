// SPDX-License-Identifier: MIT
#pragma once

namespace quorvantis {

/// How a pattern is compiled: a sum of these bits. Inline flags of a pattern switch the first four.
namespace regex_flag {

constexpr int kSingleLine = 1;    ///< "." also matches a line feed
constexpr int kMultiLine = 2;     ///< "^" and "$" also match at line breaks
constexpr int kGlobal = 4;        ///< "\G" is the place where the previous match ended
constexpr int kIgnoreCase = 8;    ///< letters match without regard to case, in classes too
constexpr int kRightToLeft = 16;  ///< the text is scanned from its end towards its start
constexpr int kExtended = 32;     ///< white space is ignored and "#" starts a comment

}  // namespace regex_flag
}  // namespace quorvantis
