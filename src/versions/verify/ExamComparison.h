// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"
#include "versions/plan/VersionPlan.h"

#include <string>
#include <vector>

namespace quorvantis {

/// What makes an exam differ from the source in the planned order, one line each, for the user; empty if it
/// is exactly that. Looks at all that a file keeps: texts, options, keys, answers, kinds, scores, and
/// attached files by their content. `version` must be complete for the source (see IsComplete).
std::vector<std::u16string> CompareWithSource(const FrameSetExam& source, const PlannedVersion& version,
                                              const FrameSetExam& exam);

}  // namespace quorvantis
