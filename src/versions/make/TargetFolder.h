// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StringTable.h"
#include "versions/folder/PlanRecord.h"

#include <filesystem>
#include <string>

namespace quorvantis {

/// The folder that versions of an exam go to unless another one is chosen: "Biology versions" beside
/// "Biology.exm".
std::filesystem::path UsualVersionFolder(const std::filesystem::path& exam);

/// Why versions of `exam` cannot be made in `folder`, for the user; empty if they can. The folder may be
/// missing or empty, but no link that leads nowhere. With `replaces` it may also hold versions of this exam
/// that were made before, but nothing else: nobody's work is overwritten.
std::u16string ProblemWithFolder(const std::filesystem::path& folder, const std::filesystem::path& exam,
                                 bool replaces, const PlanForm& form, const StringTable& strings);

/// The plan of versions in a folder, if it holds one that can be read.
std::optional<PlanRecord> PlanIn(const std::filesystem::path& folder, const PlanForm& form);

}  // namespace quorvantis
