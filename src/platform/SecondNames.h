// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <limits>
#include <system_error>

namespace quorvantis {

/// Makes `copy` a hard link to the file `source`, or a copy of it where the file system has no links, unless
/// it has more than `largestCopy` bytes. False when there is no such file, it is too large or there is no
/// room.
inline bool LinkOrCopy(const std::filesystem::path& source, const std::filesystem::path& copy,
                       std::uintmax_t largestCopy = std::numeric_limits<std::uintmax_t>::max()) {
  namespace fs = std::filesystem;
  std::error_code error;
  if (!fs::is_regular_file(fs::symlink_status(source, error))) return false;
  fs::create_hard_link(source, copy, error);
  if (!error) return true;
  const std::uintmax_t size = fs::file_size(source, error);
  if (error || size > largestCopy) return false;
  fs::copy_file(source, copy, error);
  const auto time = fs::last_write_time(source, error);
  if (!error) fs::last_write_time(copy, time, error);
  if (!error) return true;
  std::error_code ignored;
  fs::remove(copy, ignored);
  return false;
}

}  // namespace quorvantis
