// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamPaper.h"
#include "versions/plan/VersionPlan.h"

#include <cstddef>
#include <vector>

namespace quorvantis {

/// How much a student with one version could copy from a neighbour with another.
struct CopyingPair {
  std::size_t first = 0;  ///< of two versions, from 0 on
  std::size_t second = 0;
  std::size_t sameQuestions = 0;  ///< places with the same question
  std::size_t sameKeys = 0;       ///< places with the same key of a choice question

  bool operator==(const CopyingPair&) const = default;
};

/// All pairs of the plan's versions. `exam` is the source.
std::vector<CopyingPair> CopyingReport(const ExamPaper& exam, const VersionPlan& plan);

}  // namespace quorvantis
