// SPDX-License-Identifier: MIT
// The lines of a paper's text. Word processors end them with CR or VT, text files with LF or CR LF.
#pragma once

#include "text/TextSpan.h"

#include <string_view>
#include <vector>

namespace quorvantis {

inline constexpr std::u16string_view kLineEnds = u"\r\n\v\f\u2028\u2029";
/// Blanks within a line, and marks that nobody sees.
inline constexpr std::u16string_view kBlanks =
    u" \t\u00A0\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008\u2009\u200A\u202F\u205F\u3000"
    u"\uFEFF\u200B\u2060\u200E\u200F\u061C\u202A\u202B\u202C\u202D\u202E\u2066\u2067\u2068\u2069";

constexpr bool IsLineEnd(char16_t unit) {
  // Most units are letters, and all texts are full of them.
  if (unit > u'\r' && unit < u'\u2028') return false;
  return kLineEnds.find(unit) != kLineEnds.npos;
}
constexpr bool IsBlank(char16_t unit) {
  if (unit < u'\u0080') return unit == u' ' || unit == u'\t';
  return kBlanks.find(unit) != kBlanks.npos;
}

/// The lines within a span, without their line ends; CR LF counts as one.
std::vector<TextSpan> LinesOf(std::u16string_view text, TextSpan within);

/// A span without blanks and line ends at its ends; empty, at its begin, if it holds nothing else.
TextSpan Trimmed(std::u16string_view text, TextSpan span);

/// Whether nothing but blanks stands between `place` and the beginning of its line.
bool BeginsLine(std::u16string_view text, std::size_t place);

/// The end of the line that `place` is in: its line end, or the end of the text.
std::size_t LineEndAfter(std::u16string_view text, std::size_t place);

/// The begin of the line that `place` is in.
std::size_t LineBeginBefore(std::u16string_view text, std::size_t place);

/// The first place from `place` on that is no blank, at most `end`.
std::size_t SkipBlanks(std::u16string_view text, std::size_t place, std::size_t end);

}  // namespace quorvantis
