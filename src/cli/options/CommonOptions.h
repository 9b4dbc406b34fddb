// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>

namespace quorvantis::cli {

/// Options that every command takes.
struct CommonOptions {
  std::filesystem::path appFolder;  ///< empty: a private folder
  bool debug = false;
  std::optional<int> language = {};  ///< identifier; without one the texts are the built-in ones
};

}  // namespace quorvantis::cli
