// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PaperPrinter.h"
#include "versions/folder/PlanRecord.h"

#include <filesystem>
#include <optional>
#include <string>

namespace quorvantis {

/// Prints the sheets of all versions beside their exam files in `folder`. Papers with fewer pages than the
/// longest get blank ones at the end, so that a stack of copies can be sorted. Returns why not all were
/// printed, in English; then none is left.
std::optional<std::string> PrintSheets(const std::filesystem::path& folder, const PlanRecord& record,
                                       PaperPrinter& printer, Progress& progress);

}  // namespace quorvantis
