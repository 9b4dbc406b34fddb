// SPDX-License-Identifier: MIT
#include "import/lines/LineWords.h"

#include "import/labels/LineText.h"
#include "text/ScriptDigits.h"

#include <algorithm>

namespace quorvantis {
namespace {

char16_t MadeSmall(char16_t unit) {
  const auto isIn = [unit](char16_t first, char16_t last) { return unit >= first && unit <= last; };
  const auto moved = [unit](int by) { return static_cast<char16_t>(unit + by); };
  if (isIn(u'A', u'Z') || isIn(u'\u00C0', u'\u00DE') || isIn(u'\u0391', u'\u03A9') ||
      isIn(u'\u0410', u'\u042F'))
    return moved(0x20);
  if (isIn(u'\u0400', u'\u040F')) return moved(0x50);
  return unit;
}

}  // namespace

bool IsLetter(char16_t unit) {
  if (unit < 0x80) return (unit | 0x20) >= u'a' && (unit | 0x20) <= u'z';
  if (DigitValueOf(unit) >= 0 || IsBlank(unit) || IsLineEnd(unit)) return false;
  if (unit < 0xC0) return unit == u'\u00AA' || unit == u'\u00B5' || unit == u'\u00BA';
  const auto isIn = [unit](char16_t first, char16_t last) { return unit >= first && unit <= last; };
  const bool isMark = unit == u'\u00D7' || unit == u'\u00F7' || unit == u'\u060C' || unit == u'\u061B' ||
                      unit == u'\u061F' || unit == u'\u0964' || isIn(0x2000, 0x2BFF) ||
                      isIn(0x2E00, 0x2E7F) || isIn(0x3000, 0x3004) || isIn(0x3008, 0x3020) ||
                      isIn(0xE000, 0xF8FF) || isIn(0xFE10, 0xFE6F) || isIn(0xFF00, 0xFF20) ||
                      isIn(0xFF3B, 0xFF40) || isIn(0xFF5B, 0xFF65) || unit >= 0xFFE0;
  return !isMark;
}

LineWords::LineWords(std::u16string_view line) {
  constexpr int kLargest = 999'999;
  bool isInWord = false;
  bool isInNumber = false;
  for (const char16_t unit : line) {
    const int digit = DigitValueOf(unit);
    const bool isLetter = digit < 0 && IsLetter(unit);
    if (digit >= 0) {
      if (!isInNumber) {
        values_.push_back(0);
        template_ += u'0';
      }
      const int value = values_.back();
      values_.back() = value > kLargest / 10 ? 0 : value * 10 + digit;
    } else {
      template_ += unit;
    }
    if (isLetter) {
      if (!isInWord) words_.emplace_back();
      words_.back() += MadeSmall(unit);
    } else if (digit < 0) {
      rest_ += IsBlank(unit) ? u' ' : unit;
    }
    isInWord = isLetter;
    isInNumber = digit >= 0;
  }
}

}  // namespace quorvantis
