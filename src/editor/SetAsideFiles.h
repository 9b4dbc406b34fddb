// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <vector>

namespace quorvantis {

/// Files that can be restored after others have deleted or replaced them. Each gets a second name in a folder
/// of its own, or a copy on file systems without hard links.
class SetAsideFiles {
 public:
  /// `folder` belongs to this object alone: created when needed, emptied before use, removed at the end.
  explicit SetAsideFiles(std::filesystem::path folder) : folder_(std::move(folder)) {}
  SetAsideFiles(const SetAsideFiles&) = delete;
  SetAsideFiles& operator=(const SetAsideFiles&) = delete;
  ~SetAsideFiles() { Clear(); }

  /// Replaces the files set aside before. Skips everything that is not a regular file.
  void SetAside(std::vector<std::filesystem::path> files);

  /// Restores every file as it was when it was set aside. Skips what cannot be restored.
  void PutBack() const;

  void Clear();

 private:
  std::filesystem::path PlaceOf(std::size_t index) const;

  std::filesystem::path folder_;
  std::vector<std::filesystem::path> files_;  ///< each is named by its index in the folder
};

}  // namespace quorvantis
