// SPDX-License-Identifier: MIT
#include "versions/plan/QuestionScores.h"

#include "scoring/ScoreDistribution.h"
#include "scoring/ScoreSegments.h"

#include <cstddef>

namespace quorvantis {
namespace {

/// Calls `visit` with the first and the last question of each run of one score.
template <class Visit>
void VisitScoreRuns(const QuestionScores& scores, const Visit& visit) {
  for (std::size_t first = 1, last = 1; first < scores.size(); first = last + 1) {
    last = first;
    while (last + 1 < scores.size() && scores[last + 1] == scores[first]) ++last;
    if (scores[first]) visit(first, last);
  }
}

}  // namespace

QuestionScores ScoresOf(const ExamPaper& exam, int questionCount) {
  QuestionScores scores(static_cast<std::size_t>(questionCount) + 1);
  if (!HasScoreRanges(exam.scoreMode)) return scores;
  for (const ScoreSegment& segment : SegmentsOf(DistributionOf(exam), questionCount)) {
    for (int number = segment.first; segment.range != 0 && number <= segment.last; ++number)
      scores[static_cast<std::size_t>(number)] = segment.score;
  }
  return scores;
}

std::size_t RangesNeeded(const QuestionScores& scores) {
  std::size_t count = 0;
  VisitScoreRuns(scores, [&count](std::size_t, std::size_t) { ++count; });
  return count;
}

void CutRanges(const QuestionScores& scores, ExamPaper& exam) {
  exam.scoreFrom.fill(0);
  exam.scoreTo.fill(0);
  exam.scoreValue.fill(0);
  std::size_t range = 0;
  VisitScoreRuns(scores, [&](std::size_t first, std::size_t last) {
    if (range == kScoreRanges) return;
    exam.scoreFrom[range] = static_cast<int>(first);
    exam.scoreTo[range] = static_cast<int>(last);
    exam.scoreValue[range++] = *scores[first];
  });
}

}  // namespace quorvantis
