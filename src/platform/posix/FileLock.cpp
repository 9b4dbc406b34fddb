// SPDX-License-Identifier: MIT
#include "platform/posix/FileLock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>

namespace quorvantis {
namespace {

std::error_code LastFailure() {
  return {errno, std::generic_category()};
}

/// A replaced file has the same name, but is another one.
bool IsStillNamed(const FileDescriptor& file, const std::filesystem::path& name) {
  struct stat opened = {};
  struct stat named = {};
  return ::fstat(file.Get(), &opened) == 0 && ::stat(name.c_str(), &named) == 0 &&
         opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

FileDescriptor OpenOrCreate(const std::filesystem::path& file, bool& hasCreated) {
  constexpr int kMode = 0666;
  // Without O_NONBLOCK, opening a pipe would wait.
  FileDescriptor existing(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  hasCreated = !existing.IsOpen() && errno == ENOENT;
  if (!hasCreated) return existing;
  FileDescriptor created(::open(file.c_str(), O_RDONLY | O_CREAT | O_EXCL | O_CLOEXEC, kMode));
  return created;
}

}  // namespace

std::optional<FileLock> FileLock::Take(const std::filesystem::path& file, std::chrono::milliseconds patience,
                                       std::error_code& error) {
  constexpr std::chrono::milliseconds kPause(20);
  const auto end = std::chrono::steady_clock::now() + patience;
  for (;;) {
    bool hasCreated = false;
    FileDescriptor opened = OpenOrCreate(file, hasCreated);
    const bool wasFaster = !opened.IsOpen() && hasCreated && errno == EEXIST;
    if (!opened.IsOpen() && !wasFaster) {
      error = LastFailure();
      return std::nullopt;
    }
    const bool isHeld = wasFaster || (::flock(opened.Get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK);
    if (!isHeld && IsStillNamed(opened, file)) return FileLock(std::move(opened), hasCreated);
    if (std::chrono::steady_clock::now() >= end) {
      error = std::make_error_code(std::errc::timed_out);
      return std::nullopt;
    }
    if (isHeld) std::this_thread::sleep_for(kPause);
  }
}

}  // namespace quorvantis
