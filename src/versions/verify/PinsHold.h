// SPDX-License-Identifier: MIT
#pragma once

#include "versions/plan/VersionPlan.h"

namespace quorvantis {

/// The first question that does not keep the place that the plan says it keeps, or whose options do not; 0 if
/// there is none. The version must have each question once (see IsComplete).
int QuestionNotKept(const VersionPlan& plan, const PlannedVersion& version);

}  // namespace quorvantis
