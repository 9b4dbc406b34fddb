// SPDX-License-Identifier: MIT
#include "import/paper/RuleMatches.h"

#include <algorithm>

namespace quorvantis {

std::vector<TextSpan> MatchesOf(const RuleSearch& rule, std::u16string_view text, TextSpan within) {
  std::vector<TextSpan> found;
  const std::u16string_view part = text.substr(0, within.end);
  for (std::size_t from = within.begin; from < within.end;) {
    const auto match = rule.Find(part, from);
    if (!match) break;
    const MatchSpan span(*match);
    if (span.Size() > 0) found.push_back({span.begin, span.end});
    from = std::max(span.end, from + 1);
  }
  return found;
}

std::vector<TextSpan> MatchesOf(std::u16string_view key, std::u16string_view pattern,
                                std::u16string_view text, TextSpan within, const CancelHook& isCancelled) {
  if (pattern.empty()) return {};
  return MatchesOf(RuleSearch(key, pattern, isCancelled), text, within);
}

}  // namespace quorvantis
