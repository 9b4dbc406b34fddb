// SPDX-License-Identifier: MIT
#include "cli/console/WhyUnreadable.h"

#include <system_error>

namespace quorvantis::cli {
namespace fs = std::filesystem;

std::string WhyUnreadable(const fs::path& file) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (!fs::exists(status))
    return error && error != std::errc::no_such_file_or_directory ? error.message() + "."
                                                                  : "There is no such file; check the path.";
  if (fs::is_directory(status)) return "It is a folder; name a file.";
  if (!fs::is_regular_file(status)) return "It is no regular file; copy it into one.";
  return "It may not be read; check its permissions.";
}

}  // namespace quorvantis::cli
