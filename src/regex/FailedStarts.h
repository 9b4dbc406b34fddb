// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace quorvantis {

/// How far searches of a text looked from each start that failed, so that a search of the text after a change
/// can leave out the starts that fail again.
///
/// Whether a start fails depends on the units that it looked at, and on nothing else; that the text ends at a
/// place counts as a unit seen there. So when the text changes from some place on, a start before it that saw
/// nothing at that place or behind it fails again. That holds for every pattern. It holds over any number of
/// changes, too, as long as every search begins at ResumeAfterChange: a start is kept out only while what it
/// saw has never changed. (A start that fails by what is remembered from one before it has seen less than it
/// depends on. But then that one saw the rest, and where that changes, the search begins there.)
class FailedStarts {
 public:
  /// A search begins. Starts that it will not tell of see at most `untoldSaw` units behind themselves.
  void BeginSearch(int untoldSaw) {
    untoldSaw_ = untoldSaw;
    matchSaw_ = 0;
  }

  /// The text up to and including `seen` decided that there is no match at `start`. Starts come in ascending
  /// order.
  void Add(int start, int seen) {
    // Where one before it saw as far, a search that begins there tries this one again as well.
    if (seen > start && (starts_.empty() || seen > starts_.back().seen)) starts_.push_back({start, seen});
  }

  /// The search has ended with a match that looked as far as `seen`.
  void Matched(int seen) { matchSaw_ = seen; }

  /// How far anything that decided about the last match looked.
  int Seen() const { return starts_.empty() ? matchSaw_ : std::max(matchSaw_, starts_.back().seen); }

  /// The text has changed from `place` on, which is not behind the start of the last match: where the next
  /// search has to begin, at the latest.
  int ResumeAfterChange(int place) {
    int resume = std::max(place - untoldSaw_, 0);
    const auto first = std::ranges::lower_bound(starts_, place, {}, &Start::seen);
    if (first != starts_.end()) resume = std::min(resume, first->start);
    while (!starts_.empty() && starts_.back().start >= resume) starts_.pop_back();
    return resume;
  }

 private:
  struct Start {
    int start;
    int seen;
  };

  std::vector<Start> starts_;  ///< in ascending order of both
  int matchSaw_ = 0;
  int untoldSaw_ = 0;
};

}  // namespace quorvantis
