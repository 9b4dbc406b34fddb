// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace quorvantis {

/// How far searches of a text looked from each failed start, so that a search after a change of the text can
/// skip the starts that fail again.
///
/// Whether a start fails depends only on the units it looked at; the end of the text counts as a unit seen
/// there. So when the text changes from some place on, a start before it that saw nothing from that place on
/// fails again. That holds for every pattern. It holds over any number of changes, too, as long as every
/// search begins at ResumeAfterChange: a start is skipped only while nothing it saw has changed. (A start
/// that fails by what is remembered from one before it has seen less than it depends on. But then that one
/// saw the rest, and where that changes, the search begins there.)
class FailedStarts {
 public:
  /// A search begins. Starts that it does not report see at most `untoldSaw` units past themselves.
  void BeginSearch(int untoldSaw) {
    untoldSaw_ = untoldSaw;
    matchSaw_ = 0;
  }

  /// There is no match at `start`; the search looked at the text up to and including `seen`. Starts are
  /// reported in ascending order.
  void Add(int start, int seen) {
    // If an earlier start saw as far, a search that resumes there tries this one again as well.
    if (seen > start && (starts_.empty() || seen > starts_.back().seen)) starts_.push_back({start, seen});
  }

  /// The search has ended with a match that looked as far as `seen`.
  void Matched(int seen) { matchSaw_ = seen; }

  /// The furthest place that mattered for the last match.
  int Seen() const { return starts_.empty() ? matchSaw_ : std::max(matchSaw_, starts_.back().seen); }

  /// The text has changed from `place` on, which is not after the start of the last match. Returns where the
  /// next search must begin, at the latest.
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
