// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FolderGuard.h"

namespace quorvantis {

/// Holds folders by locks on themselves, which leave nothing in them and end with the program, however it
/// ends. On a file system without locks, nothing counts as abandoned.
class PosixFolderGuard : public FolderGuard {
 public:
  std::shared_ptr<void> Hold(const std::filesystem::path& folder) override;
  void RemoveIfAbandoned(const std::filesystem::path& folder) override;
};

}  // namespace quorvantis
