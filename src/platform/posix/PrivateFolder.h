// SPDX-License-Identifier: MIT
#pragma once

#include "platform/posix/FileDescriptor.h"
#include "platform/posix/Leftover.h"

#include <filesystem>
#include <optional>

namespace quorvantis {

/// A fresh folder that only this user can enter, in the folder for temporary files; removed with its content
/// at the end, and by a signal (see RemoveLeftoversOnSignals); that of a program which was killed goes with
/// the next one that is made. Throws std::filesystem::filesystem_error when it cannot be made.
class PrivateFolder {
 public:
  PrivateFolder();
  ~PrivateFolder();
  PrivateFolder(const PrivateFolder&) = delete;
  PrivateFolder& operator=(const PrivateFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
  std::optional<Leftover> leftover_;
  FileDescriptor lock_;  ///< tells other programs that the folder is in use
};

}  // namespace quorvantis
