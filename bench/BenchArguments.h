// SPDX-License-Identifier: MIT
// The arguments of our own that benchmark programs take, before the library sees the others.
#pragma once

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace quorvantis::bench {

/// Takes the first argument that begins with `option` off the arguments, and returns what follows that.
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

/// Takes --folder=DIR: where a benchmark keeps its files. The current folder without it.
inline std::filesystem::path TakeFolder(int& count, char** arguments) {
  return std::filesystem::absolute(TakeArgument(count, arguments, "--folder=").value_or("."));
}

}  // namespace quorvantis::bench
