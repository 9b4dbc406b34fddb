// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <system_error>

namespace quorvantis {

/// Keeps a large file that is being written from piling up in the page cache: what has been written goes to
/// the disk at once, and its pages go when it is there. Without this, saving an exam with 1000 MB of films
/// takes more than twice as long, since memory for the source, the old file and the new one is taken at the
/// same time; and the disk has nothing to do until all has been copied.
class WriteBehind {
 public:
  /// `bytes` more were written to the end of `descriptor`, which is only ever appended to. An error is one of
  /// writing them to the disk, and is told here only: a later fsync would not tell it again.
  std::error_code Written(int descriptor, std::uint64_t bytes);

 private:
  std::uint64_t written_ = 0;
  std::uint64_t started_ = 0;  ///< up to here the disk is at work
  std::uint64_t dropped_ = 0;  ///< up to here it is done
  bool isOfUse_ = true;        ///< not every file system takes part
};

}  // namespace quorvantis
