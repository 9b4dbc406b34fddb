// SPDX-License-Identifier: MIT
#pragma once

#include "platform/posix/FileDescriptor.h"

#include <filesystem>
#include <optional>

namespace quorvantis {

/// Holds an application folder for one program: two on the same folder would empty each other's work folders.
/// Released when the lock goes, or when the program ends in any way.
class FolderLock {
 public:
  /// Nothing when another program holds the folder, which must exist. On a file system without locks
  /// everybody gets one.
  static std::optional<FolderLock> Take(const std::filesystem::path& folder);

 private:
  explicit FolderLock(FileDescriptor folder) : folder_(std::move(folder)) {}

  FileDescriptor folder_;
};

}  // namespace quorvantis
