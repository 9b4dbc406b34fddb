// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <set>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

namespace quorvantis {

/// Lists the exam files in folders and all below them, a few entries at a time. Links are followed, each
/// folder is read once, so links in circles end; a file that several paths lead to is listed once, by its
/// path without links. What is hidden is passed over. Nothing fails: what cannot be read is told.
class FolderScan {
 public:
  /// `folders` are full paths without links.
  explicit FolderScan(const std::vector<std::filesystem::path>& folders);

  /// Looks at up to `count` entries. False once all have been listed.
  bool Step(std::size_t count);

  /// The exam files listed so far, in no order.
  const std::vector<std::filesystem::path>& Exams() const { return exams_; }
  bool HasFound(const std::filesystem::path& exam) const { return found_.contains(exam.native()); }

  std::size_t FilesSeen() const { return filesSeen_; }

  /// Folders that could not be read to their end, and those that were given and do not exist, at the end of
  /// the scan either.
  const std::vector<std::filesystem::path>& Unreadable() const { return unreadable_; }

 private:
  bool OpenNextFolder();
  void Look(const std::filesystem::directory_entry& entry);
  void FollowLink();
  void AddExam(const std::filesystem::path& file);
  void TellVanishedRoots();

  std::vector<std::filesystem::path> roots_;
  std::vector<std::filesystem::path> toOpen_;
  std::size_t rootsLeft_;  ///< the first entries of toOpen_ are folders that were given
  std::deque<std::filesystem::path> links_;
  std::unordered_set<std::string> linked_;  ///< files that links have led to
  std::filesystem::path folder_;
  std::filesystem::directory_iterator next_;
  std::set<std::pair<std::uint64_t, std::uint64_t>> opened_;  ///< device and file number
  std::vector<std::filesystem::path> exams_;
  std::unordered_set<std::string> found_;
  std::vector<std::filesystem::path> unreadable_;
  std::size_t filesSeen_ = 0;
};

}  // namespace quorvantis
