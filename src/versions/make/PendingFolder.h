// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FolderGuard.h"

#include <filesystem>
#include <memory>
#include <string_view>
#include <system_error>

namespace quorvantis {

/// The new content of a folder, made in a hidden one beside it. Destroyed without Commit, it leaves no trace.
class PendingFolder {
 public:
  /// Creates the hidden folder beside `target`, whose parent must exist. With a guard, which may be null,
  /// hidden folders there that programs have left when they were killed are removed.
  PendingFolder(const std::filesystem::path& target, FolderGuard* guard);
  ~PendingFolder();
  PendingFolder(const PendingFolder&) = delete;
  PendingFolder& operator=(const PendingFolder&) = delete;

  /// Why the hidden folder could not be created.
  std::error_code Error() const { return error_; }
  const std::filesystem::path& Path() const { return path_; }

  /// Gives the folder its name. A folder that has it already is replaced, with all that is in it; it stays if
  /// this fails.
  std::error_code Commit();

 private:
  void RemoveAbandoned(FolderGuard& guard) const;
  void Create(FolderGuard* guard);
  void RemoveOld(const std::filesystem::path& old) const;
  std::filesystem::path HiddenName(std::string_view kind, int number) const;
  std::error_code MoveOldAway(std::filesystem::path& old) const;

  std::filesystem::path target_;
  std::filesystem::path path_;  ///< empty once it has its name
  std::error_code error_;
  std::shared_ptr<void> held_;
};

}  // namespace quorvantis
