// SPDX-License-Identifier: MIT
#include "bank/index/FileStamp.h"

#include <chrono>
#include <sys/stat.h>

namespace quorvantis {

std::optional<FileStamp> FileStamp::Of(const std::filesystem::path& file) {
  constexpr std::int64_t kNanoseconds = 1'000'000'000;
  struct stat status {};
  if (::stat(file.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
  return FileStamp{status.st_size, status.st_mtim.tv_sec * kNanoseconds + status.st_mtim.tv_nsec};
}

std::int64_t NowInNanoseconds() {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
}

}  // namespace quorvantis
