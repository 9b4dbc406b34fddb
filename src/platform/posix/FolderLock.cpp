// SPDX-License-Identifier: MIT
#include "platform/posix/FolderLock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>

namespace quorvantis {

std::optional<FolderLock> FolderLock::Take(const std::filesystem::path& folder) {
  FileDescriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  const bool held = ::flock(descriptor.Get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
  if (held) return std::nullopt;
  return FolderLock(std::move(descriptor));
}

}  // namespace quorvantis
