// SPDX-License-Identifier: MIT
#pragma once

#include "model/FrameSetExam.h"

#include <nlohmann/json_fwd.hpp>

#include <filesystem>
#include <string>
#include <vector>

namespace quorvantis::cli {

/// Fills a reset exam from its JSON description. Missing members keep the reset values; members that a file
/// derives (counts, masks, formats) are ignored. Attached files are looked up relative to `baseFolder`.
/// Throws CommandError with the place in the description when something cannot be used.
void FillExam(FrameSetExam& exam, const nlohmann::json& description, const std::filesystem::path& baseFolder);

/// What a saved and reloaded exam will not have any more, one line each; call after CountQuestions.
std::vector<std::string> LossesOnSaving(const FrameSetExam& exam);

}  // namespace quorvantis::cli
