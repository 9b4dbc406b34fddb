// SPDX-License-Identifier: MIT
#pragma once

#include "platform/posix/FileDescriptor.h"

#include <chrono>
#include <filesystem>
#include <optional>
#include <system_error>

namespace quorvantis {

/// Holds a file for one writer at a time, so that what was read of it is still so when it is replaced. The
/// lock is on the file itself and leaves nothing behind. Works across programs, and within one.
class FileLock {
 public:
  /// Waits for others at most `patience`; then, or on another failure, nothing, with `error` set
  /// (`timed_out` for the former). A missing file is created empty. On a file system without locks everybody
  /// gets one.
  static std::optional<FileLock> Take(const std::filesystem::path& file, std::chrono::milliseconds patience,
                                      std::error_code& error);

  /// Whether Take has created the file.
  bool HasCreated() const { return hasCreated_; }

 private:
  FileLock(FileDescriptor file, bool hasCreated) : file_(std::move(file)), hasCreated_(hasCreated) {}

  FileDescriptor file_;
  bool hasCreated_;
};

}  // namespace quorvantis
