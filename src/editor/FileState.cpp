// SPDX-License-Identifier: MIT
#include "editor/FileState.h"

#include <system_error>

namespace quorvantis {

std::optional<FileState> FileState::Of(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) return std::nullopt;
  const auto size = std::filesystem::file_size(file, error);
  if (error) return std::nullopt;
  const auto written = std::filesystem::last_write_time(file, error);
  return error ? std::nullopt : std::optional(FileState{file, size, written});
}

}  // namespace quorvantis
