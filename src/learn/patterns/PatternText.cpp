// SPDX-License-Identifier: MIT
#include "learn/patterns/PatternText.h"

#include "import/labels/LineText.h"

#include <algorithm>
#include <vector>

namespace quorvantis {

std::u16string LiteralPattern(std::u16string_view text) {
  constexpr std::u16string_view kSpecial = u"\\^$.|?*+()[]{}#";
  std::u16string pattern;
  for (std::size_t at = 0; at < text.size();) {
    std::size_t end = at;
    bool hasLineEnd = false;
    for (; end < text.size() && (IsBlank(text[end]) || IsLineEnd(text[end])); ++end)
      hasLineEnd = hasLineEnd || IsLineEnd(text[end]);
    // Rules stand in one line.
    if (end > at) pattern += hasLineEnd ? u"\\s*" : u"[ \\t\u00A0\u3000]*";
    if (end == text.size()) break;
    const char16_t unit = text[end];
    at = end + 1;
    if (kSpecial.find(unit) != kSpecial.npos) pattern += u'\\';
    pattern += unit < u' ' ? u'.' : unit;
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
