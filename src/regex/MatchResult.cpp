// SPDX-License-Identifier: MIT
#include "regex/MatchResult.h"

namespace quorvantis {

MatchResult::MatchResult(const std::vector<int>& bounds)
    : outcome_(MatchOutcome::Matched), entries_{1, static_cast<int>(bounds.size() / 2)} {
  entries_.insert(entries_.end(), bounds.begin(), bounds.end());
}

int MatchResult::Entry(int index, int fallback) const {
  const bool exists = index >= 0 && static_cast<std::size_t>(index) < entries_.size();
  return exists ? entries_[static_cast<std::size_t>(index)] : fallback;
}

std::u16string GroupText(const MatchResult& result, int group, std::u16string_view subject) {
  const int start = result.GroupStart(group);
  const int end = result.GroupEnd(group);
  if (group < 0 || start < 0 || end < start || static_cast<std::size_t>(end) > subject.size()) return {};
  return std::u16string(
      subject.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start)));
}

}  // namespace quorvantis
