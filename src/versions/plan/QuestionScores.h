// SPDX-License-Identifier: MIT
// The score of each question, and the ranges that give it after questions have moved.
#pragma once

#include "model/ExamPaper.h"

#include <optional>
#include <vector>

namespace quorvantis {

/// Scores by question number, from index 1 on. Nothing for a question that no range has, and for all
/// questions while the exam has no ranges.
using QuestionScores = std::vector<std::optional<float>>;

QuestionScores ScoresOf(const ExamPaper& exam, int questionCount);

/// How many ranges give these scores: one for each run of the same score.
std::size_t RangesNeeded(const QuestionScores& scores);

/// Cuts the ranges of `exam` so that they give `scores`, for which kScoreRanges are enough.
void CutRanges(const QuestionScores& scores, ExamPaper& exam);

}  // namespace quorvantis
