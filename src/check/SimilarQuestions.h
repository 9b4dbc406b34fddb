// SPDX-License-Identifier: MIT
#pragma once

#include "check/CheckRule.h"

namespace quorvantis {

/// Two questions that ask nearly the same. Told at the later one. Questions with other numbers in them, with
/// other files or with other options are different, and so are those that share only a passage.
class NearlyEqualQuestions : public CheckRule {
 public:
  void Check(const CheckedExam& exam, FindingList& findings) const override;
};

}  // namespace quorvantis
