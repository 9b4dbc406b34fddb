// SPDX-License-Identifier: MIT
#include "scoring/RangeEnds.h"

namespace quorvantis {
namespace {

bool IsOutside(const ScoreDistribution& ranges, std::size_t i, int end, int questionCount) {
  return end < ranges.scoreFrom[i] || end < 1 || end > questionCount;
}

/// Deliberately ignored rather than refused, and not checked for the first range. This needs a range that
/// begins before the previous one ends, which a file can hold.
bool EndsWithinRangeBefore(const ScoreDistribution& ranges, std::size_t i, int end) {
  return i > 0 && end <= ranges.scoreTo[i - 1];
}

/// Deliberately, only the first range may swallow a next range that does not end with the exam.
bool SwallowsNextRange(const ScoreDistribution& ranges, std::size_t i, int end, int questionCount) {
  return end == questionCount && (i == 0 || ranges.scoreTo[i + 1] == questionCount);
}

/// Deliberately only the next range: later ones stay, even if range 1 now covers them.
void ClearNextRange(ScoreDistribution& ranges, std::size_t i) {
  ranges.scoreFrom[i + 1] = 0;
  ranges.scoreTo[i + 1] = 0;
  ranges.scoreValue[i + 1] = 0;
}

void EndBefore(ScoreDistribution& ranges, std::size_t i, int nextStart) {
  ranges.scoreTo[i] = nextStart - 1;
  ranges.scoreFrom[i + 1] = nextStart;
}

void Shorten(ScoreDistribution& ranges, std::size_t i, int end, int questionCount) {
  const bool nextWasUnused = ranges.scoreFrom[i + 1] == 0;
  EndBefore(ranges, i, end + 1);
  if (nextWasUnused) ranges.scoreTo[i + 1] = questionCount;
}

}  // namespace

TypedEnd MoveEnd(ScoreDistribution& ranges, std::size_t i, int end, int questionCount) {
  if (end == ranges.scoreTo[i]) return TypedEnd::Same;
  if (IsOutside(ranges, i, end, questionCount)) return TypedEnd::Reverted;
  if (EndsWithinRangeBefore(ranges, i, end)) return TypedEnd::Ignored;
  if (end < ranges.scoreTo[i]) {
    Shorten(ranges, i, end, questionCount);
  } else if (SwallowsNextRange(ranges, i, end, questionCount)) {
    ranges.scoreTo[i] = questionCount;
    ClearNextRange(ranges, i);
  } else if (end < ranges.scoreTo[i + 1]) {
    EndBefore(ranges, i, end + 1);
  } else if (i == 0) {  // deliberately only the first range gives way; the others revert
    EndBefore(ranges, i, ranges.scoreTo[i + 1]);
    return TypedEnd::Clamped;
  } else {
    return TypedEnd::Reverted;
  }
  return TypedEnd::Moved;
}

}  // namespace quorvantis
