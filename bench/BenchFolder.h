// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <filesystem>
#include <string_view>

namespace quorvantis::bench {

/// Takes --folder=DIR off the arguments: where a benchmark keeps its files. The current folder without it.
inline std::filesystem::path TakeFolder(int& count, char** arguments) {
  constexpr std::string_view kOption = "--folder=";
  for (int i = 1; i < count; ++i) {
    if (!std::string_view(arguments[i]).starts_with(kOption)) continue;
    const auto folder = std::filesystem::absolute(arguments[i] + kOption.size());
    std::copy(arguments + i + 1, arguments + count, arguments + i);
    --count;
    return folder;
  }
  return std::filesystem::current_path();
}

}  // namespace quorvantis::bench
