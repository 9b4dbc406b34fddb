// SPDX-License-Identifier: MIT
// What lies in a folder. Links are seen, not followed, and nothing fails: what cannot be read is not there.
#pragma once

#include <filesystem>
#include <system_error>
#include <vector>

namespace quorvantis {

inline bool IsLink(const std::filesystem::path& path) {
  std::error_code ignored;
  return std::filesystem::is_symlink(std::filesystem::symlink_status(path, ignored));
}

/// False for a link to a folder.
inline bool IsFolder(const std::filesystem::path& path) {
  std::error_code ignored;
  return std::filesystem::is_directory(std::filesystem::symlink_status(path, ignored));
}

/// The full paths of the entries of a folder, in no order. They are listed completely before the first is
/// returned, so that the caller may remove them.
inline std::vector<std::filesystem::path> EntriesOf(const std::filesystem::path& folder) {
  std::error_code error;
  std::vector<std::filesystem::path> entries;
  for (std::filesystem::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
    entries.push_back(it->path());
  }
  return entries;
}

}  // namespace quorvantis
