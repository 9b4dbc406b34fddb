// SPDX-License-Identifier: MIT
#include "overview/ScoreChanges.h"

#include "scoring/ScoreSegments.h"

#include <cstddef>

namespace quorvantis {
namespace {

/// By number; slot 0 is unused.
std::vector<float> ScoresOf(const ExamPaper& exam) {
  std::vector<float> scores(kQuestionSlots);
  for (const ScoreSegment& segment : SegmentsOf(DistributionOf(exam), kMaxQuestions)) {
    for (int number = segment.first; number <= segment.last; ++number)
      scores[static_cast<std::size_t>(number)] = segment.score;
  }
  return scores;
}

}  // namespace

std::vector<ScoreChange> ScoreChanges(const ExamPaper& exam, int lastQuestion,
                                      const std::function<int(int)>& formerNumber) {
  if (exam.scoreMode != ScoreMode::Custom) return {};
  const std::vector<float> scores = ScoresOf(exam);
  std::vector<ScoreChange> changes;
  for (int number = 1; number <= lastQuestion; ++number) {
    const auto former = static_cast<std::size_t>(formerNumber(number));
    const float now = scores[static_cast<std::size_t>(number)];
    if (former != 0 && scores[former] != now) changes.push_back({number, scores[former], now});
  }
  return changes;
}

}  // namespace quorvantis
