// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvantis {

enum class MatchOutcome {
  Matched,
  NoMatch,
  Cancelled,  ///< the caller's hook cancelled the match
  TooLarge,   ///< the match would have exceeded its memory limit
};

/// The result of one match: an array of integers. Entry 0 is non-zero when the pattern matched, entry 1 is
/// the number of groups with the whole match; entries 2·g + 2 and 2·g + 3 are the start and the end of group
/// g in UTF-16 units, -1 for a group that did not take part. Group 0 is the whole match.
class MatchResult {
 public:
  explicit MatchResult(MatchOutcome outcome) : outcome_(outcome) {}
  /// Of a match.
  explicit MatchResult(std::vector<int> entries)
      : outcome_(MatchOutcome::Matched), entries_(std::move(entries)) {}

  MatchOutcome Outcome() const { return outcome_; }
  bool IsMatched() const { return Entry(0, 0) != 0; }
  int Groups() const { return Entry(1, 0); }
  int GroupStart(int group) const { return Entry(2 * group + 2, -1); }
  int GroupEnd(int group) const { return Entry(2 * group + 3, -1); }

  /// An entry of the array; `fallback` outside it.
  int Entry(int index, int fallback) const {
    const bool exists = index >= 0 && static_cast<std::size_t>(index) < entries_.size();
    return exists ? entries_[static_cast<std::size_t>(index)] : fallback;
  }

 private:
  MatchOutcome outcome_;
  std::vector<int> entries_;
};

/// The part of `subject` that a group matched; empty for a group that did not take part or does not exist.
std::u16string GroupText(const MatchResult& result, int group, std::u16string_view subject);

}  // namespace quorvantis
