// SPDX-License-Identifier: MIT
#pragma once

#include "import/labels/Numerals.h"
#include "text/TextSpan.h"

#include <optional>
#include <string_view>

namespace quorvantis {

/// A number in digits at the beginning of a line, with what ends it: "12.", "(3)", "4", TAB.
struct LineNumber {
  TextSpan label;  ///< from its bracket to behind its close, without blanks around it
  int value = 0;
  NumeralKind kind = NumeralKind::Decimal;
  char16_t open = 0;   ///< its bracket, or 0
  char16_t close = 0;  ///< what ends it; a tab may

  bool IsLike(const LineNumber& other) const {
    return kind == other.kind && open == other.open && close == other.close;
  }
};

/// Nothing if the line does not begin with one, as with "3.5".
std::optional<LineNumber> LineNumberOf(std::u16string_view text, TextSpan line);

}  // namespace quorvantis
