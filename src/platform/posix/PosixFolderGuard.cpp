// SPDX-License-Identifier: MIT
#include "platform/posix/PosixFolderGuard.h"

#include "platform/posix/FileDescriptor.h"
#include "platform/posix/Leftover.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

struct HeldFolder {
  HeldFolder(FileDescriptor opened, const fs::path& folder) : lock(std::move(opened)), leftover(folder) {}
  FileDescriptor lock;
  Leftover leftover;
};

FileDescriptor OpenFolder(const fs::path& folder) {
  FileDescriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  return opened;
}

/// Whether the folder of that name is still the opened one, and this user's.
bool IsThere(const FileDescriptor& opened, const fs::path& folder) {
  struct stat held {};
  struct stat named {};
  return ::fstat(opened.Get(), &held) == 0 && ::lstat(folder.c_str(), &named) == 0 &&
         held.st_dev == named.st_dev && held.st_ino == named.st_ino && held.st_uid == ::geteuid();
}

}  // namespace

std::shared_ptr<void> PosixFolderGuard::Hold(const fs::path& folder) {
  FileDescriptor opened = OpenFolder(folder);
  const bool isHeld = ::flock(opened.Get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
  if (isHeld || !IsThere(opened, folder)) return nullptr;
  return std::make_shared<HeldFolder>(std::move(opened), folder);
}

void PosixFolderGuard::RemoveIfAbandoned(const fs::path& folder) {
  const FileDescriptor opened = OpenFolder(folder);
  if (::flock(opened.Get(), LOCK_EX | LOCK_NB) != 0 || !IsThere(opened, folder)) return;
  std::error_code ignored;
  fs::remove_all(folder, ignored);
}

}  // namespace quorvantis
