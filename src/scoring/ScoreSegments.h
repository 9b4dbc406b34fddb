// SPDX-License-Identifier: MIT
#pragma once

#include "scoring/ScoreDistribution.h"

#include <vector>

namespace quorvantis {

/// Consecutive questions scored by one range.
struct ScoreSegment {
  int range = 0;  ///< 1 to 10; 0: no range has these questions
  int first = 0;
  int last = 0;
  float score = 0;  ///< of each question

  friend bool operator==(const ScoreSegment&, const ScoreSegment&) = default;
};

/// The questions 1 to `questionCount` as the ranges score them, in order and without gaps, whatever the
/// ranges hold. A question that lies in several ranges belongs to the first of them.
std::vector<ScoreSegment> SegmentsOf(const ScoreDistribution& ranges, int questionCount);

/// The highest score a student can reach.
double TotalScore(const std::vector<ScoreSegment>& segments);

}  // namespace quorvantis
