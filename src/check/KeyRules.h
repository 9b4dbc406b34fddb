// SPDX-License-Identifier: MIT
// What the right answers of a whole exam give away.
#pragma once

#include "check/CheckRule.h"

namespace quorvantis {

/// Some letters are the right answer too often for chance. Of questions with one right option, separately by
/// the number of options, from 20 questions on.
class SkewedKeys : public CheckRule {
 public:
  void Check(const CheckedExam& exam, FindingList& findings) const override;
};

/// The right option is longer than all others in more than two thirds of the questions with one right of
/// three or more options, from 10 questions on.
class LongestIsRight : public CheckRule {
 public:
  void Check(const CheckedExam& exam, FindingList& findings) const override;
};

/// Whether counts that should be equal differ more than chance explains (chi-square test, p < 0.01). Of two
/// to five counts.
bool AreSkewed(const std::vector<int>& counts);

}  // namespace quorvantis
