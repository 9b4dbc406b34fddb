// SPDX-License-Identifier: MIT
#pragma once

#include "platform/posix/FileDescriptor.h"
#include "platform/posix/Leftover.h"

#include <filesystem>
#include <optional>

namespace quorvantis {

/// A fresh folder that only this user can enter, in the folder for temporary files; removed with its content
/// at the end, and by a signal (see RemoveLeftoversOnSignals). The folder of a killed program is removed when
/// the next one is created. Throws std::filesystem::filesystem_error if it cannot be created.
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
