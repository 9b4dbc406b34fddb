// SPDX-License-Identifier: MIT
#pragma once

#include "model/FrameSetExam.h"

#include <string>
#include <vector>

namespace quorvantis::cli {

/// What a saved and reloaded exam will not have any more, one line each; call after CountQuestions.
std::vector<std::string> LossesOnSaving(const FrameSetExam& exam);

}  // namespace quorvantis::cli
