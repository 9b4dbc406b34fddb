// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Progress.h"
#include "versions/folder/PlanRecord.h"
#include "versions/make/VersionMaker.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// What the window for versions asks the program to do.
struct VersionsServices {
  /// Makes versions; called on another thread.
  std::function<MadeVersions(const VersionOrder& order, Progress& progress)> make;
  /// Whether versions may go to a folder: see ProblemWithFolder.
  std::function<std::u16string(const std::filesystem::path& folder, bool replaces)> problemWith;
  /// The plan of versions that were made there before.
  std::function<std::optional<PlanRecord>(const std::filesystem::path& folder)> planIn;
  std::function<bool(std::u16string_view question)> askYesNo;
};

}  // namespace quorvantis
