// SPDX-License-Identifier: MIT
#include "scoring/ScoreSegments.h"

namespace quorvantis {
namespace {

/// The first range with the question, 1 to 10, or 0.
int RangeOf(const ScoreDistribution& ranges, int question) {
  for (std::size_t i = 0; i < kScoreRanges; ++i) {
    const bool holds = question >= ranges.scoreFrom[i] && question <= ranges.scoreTo[i];
    if (holds && ranges.scoreFrom[i] > 0) return static_cast<int>(i + 1);
  }
  return 0;
}

float ScoreOf(const ScoreDistribution& ranges, int range) {
  return range == 0 ? 0 : ranges.scoreValue[static_cast<std::size_t>(range - 1)];
}

}  // namespace

std::vector<ScoreSegment> SegmentsOf(const ScoreDistribution& ranges, int questionCount) {
  std::vector<ScoreSegment> segments;
  for (int question = 1; question <= questionCount; ++question) {
    const int range = RangeOf(ranges, question);
    if (segments.empty() || segments.back().range != range) {
      segments.push_back({range, question, question, ScoreOf(ranges, range)});
    }
    segments.back().last = question;
  }
  return segments;
}

double TotalScore(const std::vector<ScoreSegment>& segments) {
  double total = 0;
  for (const ScoreSegment& segment : segments) {
    total += (segment.last - segment.first + 1) * static_cast<double>(segment.score);
  }
  return total;
}

}  // namespace quorvantis
