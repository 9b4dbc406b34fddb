// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamPaper.h"

#include <array>

namespace quorvantis {

/// How the questions of an exam are scored: all the same, or by up to ten consecutive ranges. Plain data; an
/// exam or a file may hold invalid ranges.
struct ScoreDistribution {
  std::array<int, kScoreRanges> scoreFrom{};     ///< first question of each range
  std::array<int, kScoreRanges> scoreTo{};       ///< last question of each range; 0: the range is unused
  std::array<float, kScoreRanges> scoreValue{};  ///< score of each question of the range
  ScoreMode scoreMode = ScoreMode::Same;
};

ScoreDistribution DistributionOf(const ExamPaper& exam);
void StoreDistribution(const ScoreDistribution& distribution, ExamPaper& exam);

}  // namespace quorvantis
