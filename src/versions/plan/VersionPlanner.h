// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamPaper.h"
#include "versions/plan/CopyingChance.h"
#include "versions/plan/VersionPlan.h"
#include "versions/plan/VersionRequest.h"

#include <cstddef>

namespace quorvantis {

/// A plan, or why there is none.
struct PlanOutcome {
  enum class Problem {
    None,
    NoQuestions,
    TooFewOrders,  ///< so much is pinned that there are only `possible` different versions
  };
  Problem problem = Problem::None;
  std::size_t possible = 0;
  VersionPlan plan = {};
  CopyingChance chance = {};  ///< what two papers of the plan share by chance

  bool IsDone() const { return problem == Problem::None; }
};

/// Plans versions of the first `questionCount` questions of an exam. The names of `request` must be usable
/// (VersionNames.h). If questions were to move among those of other scores, and ten ranges cannot give the
/// scores in such orders, they move only among those of their own score: then `plan.moves` tells so.
PlanOutcome PlanVersions(const ExamPaper& exam, int questionCount, const VersionRequest& request);

}  // namespace quorvantis
