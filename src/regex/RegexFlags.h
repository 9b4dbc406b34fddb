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

/// The flag that an inline letter switches; 0 for a letter that switches none.
constexpr int InlineFlag(char16_t letter) {
  switch (letter) {
    case u's':
    case u'S':
      return regex_flag::kSingleLine;
    case u'm':
    case u'M':
      return regex_flag::kMultiLine;
    case u'g':
    case u'G':
      return regex_flag::kGlobal;
    case u'i':
    case u'I':
      return regex_flag::kIgnoreCase;
    case u'x':
    case u'X':
      return regex_flag::kExtended;
    default:
      return 0;
  }
}

}  // namespace quorvantis
