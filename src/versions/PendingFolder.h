// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <system_error>

namespace quorvantis {

/// The new content of a folder, made in a hidden one beside it. Destroyed without Commit, it leaves no trace.
class PendingFolder {
 public:
  /// See VersionPorts::guardFolder.
  using Guard = std::function<std::shared_ptr<void>(const std::filesystem::path& folder)>;

  /// Creates the hidden folder beside `target`, whose parent must exist.
  PendingFolder(const std::filesystem::path& target, const Guard& guard);
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
  std::filesystem::path HiddenName(const char* what, int number) const;
  std::error_code MoveOldAway(std::filesystem::path& old) const;

  std::filesystem::path target_;
  std::filesystem::path path_;  ///< empty once it has its name
  std::error_code error_;
  std::shared_ptr<void> guard_;
};

}  // namespace quorvantis
