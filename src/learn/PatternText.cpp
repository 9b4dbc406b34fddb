// SPDX-License-Identifier: MIT
#include "learn/PatternText.h"

#include "import/labels/LineText.h"

#include <algorithm>
#include <vector>

namespace quorvantis {

std::u16string LiteralPattern(std::u16string_view text) {
  constexpr std::u16string_view kSpecial = u"\\^$.|?*+()[]{}#";
  std::u16string pattern;
  bool isAfterBlank = false;
  for (const char16_t unit : text) {
    if (IsBlank(unit)) {
      if (!isAfterBlank) pattern += u"[ \\t\u00A0\u3000]*";
    } else {
      if (kSpecial.find(unit) != kSpecial.npos) pattern += u'\\';
      pattern += unit;
    }
    isAfterBlank = IsBlank(unit);
  }
  return pattern;
}

std::u16string ClassPattern(const std::set<char16_t>& units) {
  if (units.empty()) return {};
  if (units.size() == 1) return LiteralPattern(std::u16string(1, *units.begin()));
  constexpr std::u16string_view kSpecial = u"\\]^-[";
  std::u16string pattern = u"[";
  for (const char16_t unit : units) {
    if (kSpecial.find(unit) != kSpecial.npos) pattern += u'\\';
    pattern += unit;
  }
  return pattern + u"]";
}

std::u16string OneOfPattern(const std::set<std::u16string>& patterns) {
  if (patterns.empty()) return {};
  std::vector<std::u16string> sorted(patterns.begin(), patterns.end());
  std::ranges::stable_sort(sorted, std::greater<>(), &std::u16string::size);
  if (sorted.size() == 1) return sorted.front();
  std::u16string pattern = u"(?:";
  for (const std::u16string& one : sorted) pattern += (pattern.size() > 3 ? u"|" : u"") + one;
  return pattern + u")";
}

}  // namespace quorvantis
