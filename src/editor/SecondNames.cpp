// SPDX-License-Identifier: MIT
#include "editor/SecondNames.h"

#include <system_error>

namespace quorvantis {
namespace fs = std::filesystem;

bool LinkOrCopy(const fs::path& source, const fs::path& copy, std::uintmax_t largestCopy) {
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
