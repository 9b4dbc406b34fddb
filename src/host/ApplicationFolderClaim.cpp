// SPDX-License-Identifier: MIT
#include "host/ApplicationFolderClaim.h"

#include "platform/posix/ApplicationFolder.h"

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

fs::path FullPath(const fs::path& given) {
  std::error_code error;
  fs::path folder = fs::absolute(given, error).lexically_normal();
  if (!folder.has_filename() && folder != folder.root_path()) folder = folder.parent_path();
  return folder;
}

}  // namespace

ApplicationFolderClaim::ApplicationFolderClaim(const fs::path& folder)
    : folder_(FullPath(folder)), problem_(Claim()) {}

ApplicationFolderClaim::Problem ApplicationFolderClaim::Claim() {
  std::error_code ignored;
  fs::create_directories(folder_, ignored);
  if (!fs::is_directory(folder_, ignored)) return Problem::NoFolder;
  lock_ = FolderLock::Take(folder_);
  if (!lock_) return Problem::InUse;
  writing_ = TryWriting(folder_);
  return writing_ ? Problem::NotWritable : Problem::None;
}

std::string ApplicationFolderClaim::Explanation() const {
  const std::string folder = folder_.string();
  switch (problem_) {
    case Problem::None:
      return {};
    case Problem::NoFolder:
      return folder + ": cannot be used as the application folder; name a folder that can be made";
    case Problem::NotWritable:
      return folder + ": nothing can be written into the application folder (" + writing_.message() +
             "); make room there, or name another folder";
    case Problem::InUse:
      return folder + ": another program works in it; close that, or name another folder";
  }
  return {};
}

}  // namespace quorvantis
