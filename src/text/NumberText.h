// SPDX-License-Identifier: MIT
// Numbers as text, the same in every locale.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quorvantis {

/// A decimal digit, 0 to 9, and no digit of another script.
constexpr bool IsDigit(char16_t unit) {
  return unit >= u'0' && unit <= u'9';
}

/// Reads a number as C's atoi does: blanks, a sign, then leading digits; anything else gives 0. Values out of
/// range become the nearest limit of the type.
int ParseInteger(std::u16string_view text);
std::int64_t ParseInteger64(std::u16string_view text);

/// Reads a number as C's atof does for decimal text: blanks, a sign, digits with a fraction and an exponent;
/// anything else gives 0. Words ("inf", "nan") and hexadecimal digits are not numbers here.
double ParseReal(std::u16string_view text);

/// Decimal text, as "%d" writes it.
std::u16string FormatInteger(std::int64_t value);

/// The same for how many of something there are.
std::u16string FormatCount(std::size_t count);

/// Hexadecimal text, as "%x" writes it.
std::u16string FormatHexadecimal(std::uint32_t value);

/// Text with two decimals, as "%1.2f" writes it.
std::u16string FormatScore(double value);

}  // namespace quorvantis
