// SPDX-License-Identifier: MIT
#include "import/lines/FoldedText.h"

#include "import/labels/LineText.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// Capitals that are a fixed distance from their small letters.
struct CapitalRange {
  char16_t first;
  char16_t last;
  int distance;
};

constexpr CapitalRange kCapitals[] = {
    {u'A', u'Z', 0x20},     {0x00C0, 0x00D6, 0x20}, {0x00D8, 0x00DE, 0x20},
    {0x0388, 0x038A, 0x25}, {0x0391, 0x03A9, 0x20}, {0x0400, 0x040F, 0x50},
    {0x0410, 0x042F, 0x20}, {0x0531, 0x0556, 0x30}, {0x24B6, 0x24CF, 0x1A},
};

/// Blocks in which capitals and small letters alternate; in each, whether the capitals are odd.
struct AlternatingRange {
  char16_t first;
  char16_t last;
  bool isOdd;
};

constexpr AlternatingRange kAlternating[] = {
    {0x0100, 0x0137, false}, {0x0139, 0x0148, true},  {0x014A, 0x0177, false},
    {0x0179, 0x017E, true},  {0x01A0, 0x01A1, false}, {0x01AF, 0x01B0, true},
    {0x0218, 0x021B, false}, {0x0490, 0x0491, false}, {0x1E00, 0x1EFF, false},
};

/// Pairs: a unit, then what it becomes.
constexpr std::u16string_view kSingleFolds = u"İiΆάΌόΎύΏώςσёеأاإاآاىيةه";

char16_t Narrow(char16_t unit) {
  if (unit >= 0xFF01 && unit <= 0xFF5E) return static_cast<char16_t>(unit - 0xFEE0);
  return IsBlank(unit) ? u' ' : unit;
}

bool IsIdeographic(char16_t unit) {
  return (unit >= 0x3041 && unit <= 0x30FF) || (unit >= 0x3131 && unit <= 0x318E) ||
         (unit >= 0x3400 && unit <= 0x9FFF) || (unit >= 0xAC00 && unit <= 0xD7A3) ||
         (unit >= 0xF900 && unit <= 0xFAFF);
}

}  // namespace

char16_t Folded(char16_t unit) {
  // Most of most papers, and asked for each of their units again and again.
  if (unit >= u'a' && unit <= u'z') return unit;
  const char16_t narrow = Narrow(unit);
  for (const CapitalRange& range : kCapitals) {
    if (narrow >= range.first && narrow <= range.last) return static_cast<char16_t>(narrow + range.distance);
  }
  if (narrow < 0x80) return narrow;
  for (std::size_t i = 0; i < kSingleFolds.size(); i += 2) {
    if (narrow == kSingleFolds[i]) return kSingleFolds[i + 1];
  }
  for (const AlternatingRange& range : kAlternating) {
    if (narrow < range.first || narrow > range.last) continue;
    return (narrow % 2 == 1) == range.isOdd ? static_cast<char16_t>(narrow + 1) : narrow;
  }
  return narrow == u'Ё' || narrow == 0x0451 ? u'е' : narrow;
}

std::u16string Folded(std::u16string_view text) {
  std::u16string folded(text);
  for (char16_t& unit : folded) unit = Folded(unit);
  return folded;
}

std::u16string FoldedCore(std::u16string_view text) {
  std::u16string core;
  for (const char16_t written : text) {
    const char16_t unit = IsLineEnd(written) ? u' ' : Folded(written);
    if (core.empty() && !IsLetterOrDigit(unit)) continue;
    if (unit == u' ' && core.back() == u' ') continue;
    core += unit;
  }
  while (!core.empty() && !IsLetterOrDigit(core.back())) core.pop_back();
  return core;
}

bool IsLetterOrDigit(char16_t unit) {
  if (unit < 0x80) return (unit >= u'0' && unit <= u'9') || (Folded(unit) >= u'a' && Folded(unit) <= u'z');
  if (unit < 0xC0) return unit == 0xAA || unit == 0xB5 || unit == 0xBA;
  if (unit == 0xD7 || unit == 0xF7 || unit == 0x060C || unit == 0x061B || unit == 0x061F) return false;
  if (unit < 0x2000) return unit != 0x0964 && unit != 0x0E5A;
  if (unit >= 0xFF01 && unit <= 0xFF5E) return IsLetterOrDigit(Narrow(unit));
  return IsIdeographic(unit) || unit == 0x3005 || (unit >= 0xD800 && unit <= 0xDFFF);
}

bool AreInOneWord(char16_t unit, char16_t next) {
  return IsLetterOrDigit(unit) && IsLetterOrDigit(next) && IsIdeographic(unit) == IsIdeographic(next);
}

}  // namespace quorvantis
