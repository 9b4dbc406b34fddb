// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"

#include <nlohmann/json_fwd.hpp>

#include <filesystem>

namespace quorvantis::cli {

/// Fills a reset exam from its JSON description. Missing members keep their reset values; derived members
/// (counts, masks, formats) are ignored. Paths of attached files are relative to `baseFolder`. Throws
/// CommandError with the place in the description if something cannot be used.
void FillExam(FrameSetExam& exam, const nlohmann::json& description, const std::filesystem::path& baseFolder);

}  // namespace quorvantis::cli
