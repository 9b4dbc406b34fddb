// SPDX-License-Identifier: MIT
#pragma once

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
};

/// Now, in the time of FileStamp.
std::int64_t NowInNanoseconds();

/// A file that was changed less than this before it was read may change again without a new time.
constexpr std::int64_t kStampGrain = 2'000'000'000;

}  // namespace quorvantis
