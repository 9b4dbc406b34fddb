// SPDX-License-Identifier: MIT
#include "platform/posix/WriteBehind.h"

#include <cerrno>
#include <fcntl.h>

namespace quorvantis {
namespace {

/// Enough to keep a disk busy while the next piece is copied.
constexpr std::uint64_t kPiece = std::uint64_t{8} * 1024 * 1024;

bool IsRefusal(int error) {
  return error == ENOSYS || error == EINVAL || error == ESPIPE || error == EOPNOTSUPP || error == EPERM;
}

std::error_code SyncRange(int descriptor, std::uint64_t from, std::uint64_t to, unsigned flags) {
  while (::sync_file_range(descriptor, static_cast<off64_t>(from), static_cast<off64_t>(to - from), flags) !=
         0) {
    if (errno != EINTR) return {errno, std::generic_category()};
  }
  return {};
}

}  // namespace

std::error_code WriteBehind::Written(int descriptor, std::uint64_t bytes) {
  constexpr unsigned kStart = SYNC_FILE_RANGE_WRITE;
  constexpr unsigned kFinish =
      SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE | SYNC_FILE_RANGE_WAIT_AFTER;
  written_ += bytes;
  if (!isOfUse_ || written_ - started_ < kPiece) return {};
  std::error_code error = SyncRange(descriptor, started_, written_, kStart);
  if (!error && started_ > dropped_) {
    error = SyncRange(descriptor, dropped_, started_, kFinish);
    ::posix_fadvise(descriptor, static_cast<off_t>(dropped_), static_cast<off_t>(started_ - dropped_),
                    POSIX_FADV_DONTNEED);
    dropped_ = started_;
  }
  started_ = written_;
  if (!error || !IsRefusal(error.value())) return error;
  isOfUse_ = false;
  return {};
}

}  // namespace quorvantis
