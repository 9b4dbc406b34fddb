// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"

#include <nlohmann/json_fwd.hpp>

#include <filesystem>

namespace quorvantis::cli {

/// Fills in what a student has answered, which no exam file holds:
/// {"resultScore": 7.5, "resultPageOption": 0, "responses": [{"number": 1, "text": "ac", "value": 1}]}.
/// Missing members leave the exam as it is. Throws CommandError with the place in the description.
void FillResponses(FrameSetExam& exam, const nlohmann::json& description);

}  // namespace quorvantis::cli
