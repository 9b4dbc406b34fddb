// SPDX-License-Identifier: MIT
// Command-line options of our benchmark programs, removed before the benchmark library parses the rest.
#pragma once

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace quorvantis::bench {

/// Removes the first argument that begins with `option` and returns the rest of it.
inline std::optional<std::string> TakeArgument(int& count, char** arguments, std::string_view option) {
  for (int i = 1; i < count; ++i) {
    if (!std::string_view(arguments[i]).starts_with(option)) continue;
    std::string value = arguments[i] + option.size();
    std::copy(arguments + i + 1, arguments + count, arguments + i);
    --count;
    return value;
  }
  return std::nullopt;
}

inline bool TakeFlag(int& count, char** arguments, std::string_view flag) {
  return TakeArgument(count, arguments, flag).has_value();
}

/// Takes --folder=DIR, the folder for a benchmark's files. Default: the current folder.
inline std::filesystem::path TakeFolder(int& count, char** arguments) {
  return std::filesystem::absolute(TakeArgument(count, arguments, "--folder=").value_or("."));
}

}  // namespace quorvantis::bench
