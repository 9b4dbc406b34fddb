// SPDX-License-Identifier: MIT
#pragma once

#include "versions/plan/VersionRequest.h"

#include <CLI/CLI.hpp>

#include <cstdint>
#include <filesystem>
#include <optional>

namespace quorvantis::cli {

/// The arguments of `versions make`.
struct MakeVersionsRequest {
  std::filesystem::path exam;
  std::filesystem::path folder;  ///< empty for the usual one beside the exam
  VersionRequest request;
  std::optional<std::uint64_t> seed;  ///< without one a random one is taken
  bool replaces = false;
  bool printsSheets = true;
};

/// The options of `versions make`, from how many to what keeps its place.
void AddVersionOptions(CLI::App& command, MakeVersionsRequest& request);

}  // namespace quorvantis::cli
