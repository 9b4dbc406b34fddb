// SPDX-License-Identifier: MIT
// Text without regard to the case of the letters A to Z; all other characters equal only themselves.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace quorvantis {

constexpr char16_t AsciiUpper(char16_t unit) {
  return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - u'a' + u'A') : unit;
}

constexpr char16_t AsciiLower(char16_t unit) {
  return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit - u'A' + u'a') : unit;
}

inline std::u16string AsciiUpper(std::u16string_view text) {
  std::u16string upper(text);
  for (char16_t& unit : upper) unit = AsciiUpper(unit);
  return upper;
}

inline std::u16string AsciiLower(std::u16string_view text) {
  std::u16string lower(text);
  for (char16_t& unit : lower) unit = AsciiLower(unit);
  return lower;
}

constexpr bool EqualsIgnoringAsciiCase(std::u16string_view a, std::u16string_view b) {
  const auto upper = [](char16_t unit) { return AsciiUpper(unit); };
  return std::ranges::equal(a, b, {}, upper, upper);
}

}  // namespace quorvantis
