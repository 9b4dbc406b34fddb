// SPDX-License-Identifier: MIT
// What can be wrong with score ranges, as far as they concern questions that there are. An exam with one
// score for all has no ranges.
#pragma once

#include "check/CheckRule.h"

#include <optional>

namespace quorvantis {

class ScoreRangesOverlap : public CheckRule {
 public:
  void Check(const CheckedExam& exam, FindingList& findings) const override;
};

class QuestionsWithoutScore : public CheckRule {
 public:
  void Check(const CheckedExam& exam, FindingList& findings) const override;
};

/// Also of less than 0.
class ScoreOfZero : public CheckRule {
 public:
  void Check(const CheckedExam& exam, FindingList& findings) const override;
};

/// A sum that is no whole number, or beside 100, may be a slip. Every other sum is told without a finding.
class OddScoreSum : public CheckRule {
 public:
  void Check(const CheckedExam& exam, FindingList& findings) const override;
};

/// The sum of the scores; nothing without ranges.
std::optional<double> SumOfScores(const FrameSetExam& exam);

}  // namespace quorvantis
