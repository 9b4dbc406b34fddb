// SPDX-License-Identifier: MIT
#include "bank/index/FileStamp.h"

#include <ctime>
#include <sys/stat.h>

namespace quorvantis {

std::optional<FileStamp> FileStamp::Of(const std::filesystem::path& file) {
  constexpr std::int64_t kNanoseconds = 1'000'000'000;
  struct stat status {};
  if (::stat(file.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
  return FileStamp{status.st_size, status.st_mtim.tv_sec * kNanoseconds + status.st_mtim.tv_nsec};
}

bool FileStamp::IsSettled() const {
  constexpr std::int64_t kGrain = 2'000'000'000;  // of the times of the slowest file systems
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::nanoseconds>(now).count() - written > kGrain;
}

std::chrono::sys_days LocalDay(std::int64_t nanoseconds) {
  constexpr std::int64_t kInSecond = 1'000'000'000;
  const auto seconds = static_cast<std::time_t>(nanoseconds / kInSecond);
  std::tm day{};
  ::localtime_r(&seconds, &day);
  return std::chrono::year(day.tm_year + 1900) / std::chrono::month(static_cast<unsigned>(day.tm_mon + 1)) /
         std::chrono::day(static_cast<unsigned>(day.tm_mday));
}

}  // namespace quorvantis
