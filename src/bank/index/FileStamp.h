// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>

namespace quorvantis {

/// What tells cheaply that a file has not changed.
struct FileStamp {
  std::int64_t size = 0;     ///< bytes
  std::int64_t written = 0;  ///< nanoseconds since 1970

  friend bool operator==(const FileStamp&, const FileStamp&) = default;

  /// Nothing if there is no such file, or if it is not a regular one.
  static std::optional<FileStamp> Of(const std::filesystem::path& file);

  /// Whether a change after now would show: a file that was written a moment ago may be written again without
  /// a new time.
  bool IsSettled() const;
};

/// The day here on which a moment in the time of stamps lies.
std::chrono::sys_days LocalDay(std::int64_t nanoseconds);

}  // namespace quorvantis
