// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <system_error>

namespace quorvantis {

/// Keeps a large file from piling up in the page cache while it is written: data goes to the disk at once,
/// and its pages leave the cache when it is there. Without this, saving an exam with 1000 MB of films takes
/// more than twice as long, since memory for the source, the old file and the new one is taken at the same
/// time; and the disk is idle until everything has been copied.
class WriteBehind {
 public:
  /// `bytes` more were written to the end of `descriptor`, which is only ever appended to. An error means
  /// that writing to the disk failed. It is reported only here: a later fsync would not report it again.
  std::error_code Written(int descriptor, std::uint64_t bytes);

 private:
  std::uint64_t written_ = 0;
  std::uint64_t started_ = 0;  ///< up to here the disk is writing
  std::uint64_t dropped_ = 0;  ///< up to here it is on the disk
  bool isOfUse_ = true;        ///< not every file system supports it
};

}  // namespace quorvantis
