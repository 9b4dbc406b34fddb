// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/Console.h"
#include "model/document/FrameSetExam.h"

#include <filesystem>

namespace quorvantis::cli {

/// Reports what the saved exam will lose, one line each.
void TellSavingLosses(const Console& console, const std::filesystem::path& file, const FrameSetExam& exam);

}  // namespace quorvantis::cli
