// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <iterator>

namespace quorvantis {

/// The zeros of scripts, up to U+FFFF; the other digits follow each.
inline constexpr char16_t kZerosOfScripts[] = {
    0x0660, 0x06F0, 0x07C0, 0x0966, 0x09E6, 0x0A66, 0x0AE6, 0x0B66, 0x0BE6, 0x0C66, 0x0CE6, 0x0D66,
    0x0DE6, 0x0E50, 0x0ED0, 0x0F20, 0x1040, 0x1090, 0x17E0, 0x1810, 0x1946, 0x19D0, 0x1A80, 0x1A90,
    0x1B50, 0x1BB0, 0x1C40, 0x1C50, 0xA620, 0xA8D0, 0xA900, 0xA9D0, 0xA9F0, 0xAA50, 0xABF0, 0xFF10};

/// The value of a decimal digit of any script, or -1.
constexpr int DigitValueOf(char16_t unit) {
  if (unit < *std::begin(kZerosOfScripts)) return unit >= u'0' && unit <= u'9' ? unit - u'0' : -1;
  const int value =
      unit - *std::prev(std::upper_bound(std::begin(kZerosOfScripts), std::end(kZerosOfScripts), unit));
  return value < 10 ? value : -1;
}

}  // namespace quorvantis
