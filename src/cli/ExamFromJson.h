// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"

#include <nlohmann/json_fwd.hpp>

#include <filesystem>

namespace quorvantis::cli {

/// Fills a reset exam from its JSON description. Missing members keep the reset values; members that a file
/// derives (counts, masks, formats) are ignored. Attached files are looked up relative to `baseFolder`.
/// Throws CommandError with the place in the description when something cannot be used.
void FillExam(FrameSetExam& exam, const nlohmann::json& description, const std::filesystem::path& baseFolder);

}  // namespace quorvantis::cli
