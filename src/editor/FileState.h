// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace quorvantis {

/// Shows whether a file has changed.
struct FileState {
  std::filesystem::path file;
  std::uintmax_t size;
  std::filesystem::file_time_type written;

  bool operator==(const FileState&) const = default;

  /// Nothing if there is no such file.
  static std::optional<FileState> Of(const std::filesystem::path& file);
};

}  // namespace quorvantis
