// SPDX-License-Identifier: MIT
#include "scoring/ScoreDistribution.h"

namespace quorvantis {

ScoreDistribution DistributionOf(const ExamPaper& exam) {
  return {exam.scoreFrom, exam.scoreTo, exam.scoreValue, exam.scoreMode};
}

void StoreDistribution(const ScoreDistribution& distribution, ExamPaper& exam) {
  exam.scoreFrom = distribution.scoreFrom;
  exam.scoreTo = distribution.scoreTo;
  exam.scoreValue = distribution.scoreValue;
  exam.scoreMode = distribution.scoreMode;
}

}  // namespace quorvantis
