// SPDX-License-Identifier: MIT
#pragma once

#include "recovery/ExamSnapshot.h"
#include "recovery/RecoveryFile.h"

#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace quorvantis {

class Files;

/// The folder of all recovery copies.
std::filesystem::path RecoveryRoot(const std::filesystem::path& applicationFolder);

/// The file of a recovery copy. A folder without it is not a copy.
std::filesystem::path RecoveryFilePath(const std::filesystem::path& folder);

/// The link with this number in a recovery copy.
std::filesystem::path RecoveryLinkPath(const std::filesystem::path& folder, int number);

/// Removes a recovery copy, and the folder of all copies if it was the last one.
void RemoveRecoveryCopy(const std::filesystem::path& folder);

/// The recovery copy of one editor: a folder with the recovery file and a link to each work copy. Whenever
/// the process ends, the folder holds one complete copy, the old one or the new one: links are made before
/// the file that names them replaces the old one, and removed after it.
class RecoveryFolder {
 public:
  /// `root` is the folder of all copies; nothing is created before the first write. `files` must outlive
  /// this.
  RecoveryFolder(Files& files, std::filesystem::path root) : files_(files), root_(std::move(root)) {}

  /// Whether there is a copy.
  bool Exists() const { return !folder_.empty(); }

  /// Replaces the copy by a new one. After an error the old one is still there, or the new one lacks an
  /// attached file.
  std::error_code Write(const ExamSnapshot& snapshot);

  /// Removes the copy.
  void Remove();

  /// Leaves the copy behind; the next one gets a new folder.
  void Release() { Adopt({}); }

  /// From now on this copy is the one to replace or remove.
  void Adopt(std::filesystem::path folder);

 private:
  std::error_code MakeFolder();
  std::optional<int> Link(const std::u16string& path);
  void RemoveNewLinks() const;
  void RemoveUnused() const;

  Files& files_;
  std::filesystem::path root_;
  std::filesystem::path folder_;  ///< empty as long as there is none
  RecoveryLinks links_;           ///< of the copy in the folder
  int lastLink_ = 0;
  std::vector<std::filesystem::path> newLinks_;  ///< made for the copy that is being written
  std::error_code missing_;                      ///< why an attached file is missing from it
  bool tidy_ = false;                            ///< the folder holds nothing but the copy
};

}  // namespace quorvantis
