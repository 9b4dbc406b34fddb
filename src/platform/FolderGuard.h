// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <memory>

namespace quorvantis {

/// Guards folders that a program fills before it gives them their name: one program alone fills each, and
/// none stays behind when its program ends.
class FolderGuard {
 public:
  virtual ~FolderGuard() = default;

  /// Holds a folder for this program as long as the result lives, wherever the folder is moved. Should a
  /// signal end the program meanwhile, the folder is removed with its content. Null if another program holds
  /// the folder or has removed it.
  virtual std::shared_ptr<void> Hold(const std::filesystem::path& folder) = 0;

  /// Removes a folder with its content if it is this user's and nobody holds it, for sure: then the program
  /// that filled it was killed.
  virtual void RemoveIfAbandoned(const std::filesystem::path& folder) = 0;
};

}  // namespace quorvantis
