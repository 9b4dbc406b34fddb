// SPDX-License-Identifier: MIT
#include "learn/rules/SafeRules.h"

#include <algorithm>

namespace quorvantis {
namespace {

bool IsStripped(char16_t unit) {
  return unit <= u' ' || unit == u'\u00A0' || unit == u'\u3000' || unit == u'\uFEFF' || unit == u'\u007F';
}

bool IsQuote(char16_t unit) {
  return unit == u'"' || unit == u'\'';
}

bool IsInQuotes(std::u16string_view value) {
  return !value.empty() && IsQuote(value.front()) && value.back() == value.front();
}

std::u16string InClass(char16_t unit) {
  return std::u16string(u"[").append(1, unit).append(u"]");
}

/// How many backslashes precede the last unit.
std::size_t BackslashesBeforeLast(std::u16string_view pattern) {
  std::size_t count = 0;
  while (count + 1 < pattern.size() && pattern[pattern.size() - 2 - count] == u'\\') ++count;
  return count;
}

}  // namespace

bool IsSafeValue(std::u16string_view value) {
  const auto isControl = [](char16_t unit) { return unit < u' ' && unit != u'\t'; };
  if (std::ranges::any_of(value, isControl)) return false;
  if (value.empty()) return true;
  return !IsStripped(value.front()) && !IsStripped(value.back()) && !IsInQuotes(value) &&
         value.front() != u';';
}

std::u16string SafePattern(std::u16string_view pattern) {
  std::u16string safe(pattern);
  if (safe.empty() || safe.find(u"\\Q") != safe.npos) return safe;
  if (IsStripped(safe.back())) {
    const bool isEscaped = BackslashesBeforeLast(safe) % 2 == 1;
    const char16_t last = safe.back();
    safe.erase(safe.size() - (isEscaped ? 2 : 1));
    safe += InClass(last);
  }
  if (IsStripped(safe.front()) || safe.front() == u';' || IsInQuotes(safe))
    safe.replace(0, 1, InClass(safe.front()));
  return safe;
}

}  // namespace quorvantis
