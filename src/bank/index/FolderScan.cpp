// SPDX-License-Identifier: MIT
#include "bank/index/FolderScan.h"

#include "text/PathText.h"

#include <algorithm>
#include <sys/stat.h>
#include <system_error>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

bool IsExamName(const fs::path& file) {
  return ExtensionOrNothing(PathToText(file.filename())) == u"exm";
}

bool IsHidden(const fs::path& path) {
  return path.filename().native().starts_with('.');
}

}  // namespace

FolderScan::FolderScan(const std::vector<fs::path>& folders)
    : roots_(folders), toOpen_(folders.rbegin(), folders.rend()), rootsLeft_(folders.size()) {}

bool FolderScan::Step(std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    if (next_ == fs::directory_iterator() && !OpenNextFolder()) {
      TellVanishedRoots();
      return false;
    }
    if (next_ == fs::directory_iterator()) continue;
    Look(*next_);
    std::error_code error;
    next_.increment(error);
    if (error) {
      unreadable_.push_back(folder_);
      next_ = {};
    }
  }
  return true;
}

/// False if there is none. A folder that cannot be opened counts as one without entries.
bool FolderScan::OpenNextFolder() {
  while (toOpen_.empty() && !links_.empty()) FollowLink();
  if (toOpen_.empty()) return false;
  folder_ = toOpen_.back();
  toOpen_.pop_back();
  const bool isRoot = toOpen_.size() < rootsLeft_;
  rootsLeft_ = std::min(rootsLeft_, toOpen_.size());
  struct stat status {};
  std::error_code error;
  if (::stat(folder_.c_str(), &status) == 0 && !opened_.emplace(status.st_dev, status.st_ino).second)
    return true;
  next_ = fs::directory_iterator(folder_, error);
  const bool hasVanished = error == std::errc::no_such_file_or_directory;
  if (error && (isRoot || !hasVanished)) unreadable_.push_back(folder_);
  return true;
}

void FolderScan::Look(const fs::directory_entry& entry) {
  ++filesSeen_;
  if (IsHidden(entry.path())) return;
  // What the folder itself tells of its entries: to look at each would take a moment on a network.
  std::error_code error;
  if (entry.is_symlink(error)) {
    links_.push_back(entry.path());
  } else if (entry.is_directory(error)) {
    toOpen_.push_back(entry.path());
  } else if (IsExamName(entry.path()) && entry.is_regular_file(error)) {
    AddExam(entry.path());
  }
}

/// Done when nothing else is left, so that what a link leads to counts where it really lies, if that is
/// listed.
void FolderScan::FollowLink() {
  const fs::path link = links_.front();
  links_.pop_front();
  std::error_code error;
  const fs::path target = fs::canonical(link, error);
  if (error) return;  // it leads nowhere or in a circle
  const fs::file_type type = fs::status(target, error).type();
  if (type == fs::file_type::directory) toOpen_.push_back(link);
  const bool isExam = type == fs::file_type::regular && IsExamName(link);
  if (isExam && !HasFound(target) && linked_.insert(target.native()).second) AddExam(link);
}

/// The folders below one that has vanished meanwhile look as if they had been removed.
void FolderScan::TellVanishedRoots() {
  for (const fs::path& root : roots_) {
    std::error_code ignored;
    const bool isKnown = std::find(unreadable_.begin(), unreadable_.end(), root) != unreadable_.end();
    if (!isKnown && !fs::is_directory(root, ignored)) unreadable_.push_back(root);
  }
}

void FolderScan::AddExam(const fs::path& file) {
  if (found_.insert(file.native()).second) exams_.push_back(file);
}

}  // namespace quorvantis
