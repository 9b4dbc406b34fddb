// SPDX-License-Identifier: MIT
#include "platform/posix/PrivateFolder.h"

#include "platform/FolderEntries.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

constexpr std::string_view kFolderPrefix = "quorvantis-";
constexpr std::string_view kRandom = "XXXXXX";
constexpr const char* kLockFile = ".in-use";

/// The lock is held before it has its name, so an unlocked folder belongs to a program that is gone.
FileDescriptor Lock(const fs::path& folder) {
  const fs::path unnamed = folder / ".new";
  FileDescriptor lock(::open(unnamed.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, 0600));
  if (::flock(lock.Get(), LOCK_EX | LOCK_NB) == 0) std::rename(unnamed.c_str(), (folder / kLockFile).c_str());
  return lock;
}

bool IsAbandoned(const fs::path& folder) {
  const std::string name = folder.filename().string();
  struct stat status {};
  const bool isOurs =
      name.starts_with(kFolderPrefix) && name.size() == kFolderPrefix.size() + kRandom.size() &&
      ::lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == ::geteuid();
  if (!isOurs) return false;
  const FileDescriptor lock(::open((folder / kLockFile).c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW));
  return lock.IsOpen() && ::flock(lock.Get(), LOCK_EX | LOCK_NB) == 0;
}

void RemoveAbandoned(const fs::path& base) {
  for (const fs::path& entry : EntriesOf(base)) {
    std::error_code ignored;
    if (IsAbandoned(entry)) fs::remove_all(entry, ignored);
  }
}

[[noreturn]] void Fail(const std::string& folder, std::error_code error) {
  throw fs::filesystem_error("cannot make a folder for temporary files; check TMPDIR", folder, error);
}

fs::path MakeFolder() {
  std::error_code error;
  const fs::path base = fs::temp_directory_path(error);
  if (error) Fail({}, error);
  RemoveAbandoned(base);
  std::string name = std::string(kFolderPrefix).append(kRandom);
  name = (fs::absolute(base) / name).string();  // the current folder may change
  if (::mkdtemp(name.data()) == nullptr) Fail(name, {errno, std::generic_category()});
  return name;
}

}  // namespace

PrivateFolder::PrivateFolder() {
  {
    const SignalsHeld held;
    // cppcheck-suppress useInitializationList ; signals must be held by then
    path_ = MakeFolder();
    leftover_.emplace(path_);
  }
  lock_ = Lock(path_);
}

PrivateFolder::~PrivateFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

}  // namespace quorvantis
