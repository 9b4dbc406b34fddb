// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"
#include "versions/plan/VersionPlan.h"

#include <string>
#include <string_view>

namespace quorvantis {

/// "Biology (A)"; of a title that would become too long for a file, the beginning.
std::u16string VersionTitle(std::u16string_view title, std::u16string_view name);

/// The exam as a version: its questions and options in the planned order, with keys, files and scores, the
/// name in the title, and random order off, since the order is what makes the version. The plan must be one
/// for the exam (see IsComplete). Attached files stay where the source has them, so they belong to it.
FrameSetExam VersionOf(const FrameSetExam& source, const PlannedVersion& version);

}  // namespace quorvantis
