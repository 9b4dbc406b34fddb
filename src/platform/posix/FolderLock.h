// SPDX-License-Identifier: MIT
#pragma once

#include "platform/posix/FileDescriptor.h"

#include <filesystem>
#include <optional>

namespace quorvantis {

/// Holds an application folder for one program: two on the same folder would empty each other's work folders.
/// Given back when the lock goes, or when the program ends in any way.
class FolderLock {
 public:
  /// Nothing when another program holds the folder, which must exist. A file system without locks lets
  /// everybody in.
  static std::optional<FolderLock> Take(const std::filesystem::path& folder);

 private:
  explicit FolderLock(FileDescriptor folder) : folder_(std::move(folder)) {}

  FileDescriptor folder_;
};

}  // namespace quorvantis
