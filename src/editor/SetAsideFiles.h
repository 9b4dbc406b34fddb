// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <vector>

namespace quorvantis {

/// Files that can be put back after others have deleted or replaced them: each gets a second name in a folder
/// of its own, or a copy where a file system knows no second names.
class SetAsideFiles {
 public:
  /// `folder` is this object's own: made when it is needed, emptied before, and removed in the end.
  explicit SetAsideFiles(std::filesystem::path folder) : folder_(std::move(folder)) {}
  SetAsideFiles(const SetAsideFiles&) = delete;
  SetAsideFiles& operator=(const SetAsideFiles&) = delete;
  ~SetAsideFiles() { Clear(); }

  /// In the place of those set aside before. What is no regular file is left out.
  void SetAside(std::vector<std::filesystem::path> files);

  /// Makes every file what it was when it was set aside. What cannot be put back is left out.
  void PutBack() const;

  void Clear();

 private:
  std::filesystem::path PlaceOf(std::size_t index) const;

  std::filesystem::path folder_;
  std::vector<std::filesystem::path> files_;  ///< each has its index as its name in the folder
};

}  // namespace quorvantis
