// SPDX-License-Identifier: MIT
#include "versions/PendingFolder.h"

#include <string>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

constexpr int kNameTries = 1000;

/// Without a slash at the end, behind which there would be an empty name; of a link, the folder it leads to.
fs::path FolderNamed(const fs::path& target) {
  std::error_code error;
  fs::path folder = fs::weakly_canonical(target, error);
  if (error) folder = fs::absolute(target, error);
  return folder.has_filename() ? folder : folder.parent_path();
}

}  // namespace

PendingFolder::PendingFolder(const fs::path& target, const Guard& guard) : target_(FolderNamed(target)) {
  for (int number = 1; number <= kNameTries && path_.empty() && !error_; ++number) {
    const fs::path candidate = HiddenName("making", number);
    // False without an error if it exists already.
    if (fs::create_directory(candidate, error_)) path_ = candidate;
  }
  if (path_.empty() && !error_) error_ = std::make_error_code(std::errc::file_exists);
  if (!path_.empty() && guard) guard_ = guard(path_);
}

PendingFolder::~PendingFolder() {
  std::error_code ignored;
  if (!path_.empty()) fs::remove_all(path_, ignored);
}

/// Short, so that it is a possible name wherever that of the target is.
fs::path PendingFolder::HiddenName(const char* what, int number) const {
  return target_.parent_path() / ("." + std::string(what) + "-versions-" + std::to_string(number));
}

/// `old` becomes the hidden name of what has had the name; it stays empty if there is nothing.
std::error_code PendingFolder::MoveOldAway(fs::path& old) const {
  std::error_code error;
  if (!fs::exists(fs::symlink_status(target_, error))) return {};
  int number = 1;
  while (fs::exists(fs::symlink_status(HiddenName("old", number), error))) ++number;
  fs::rename(target_, HiddenName("old", number), error);
  if (!error) old = HiddenName("old", number);
  return error;
}

std::error_code PendingFolder::Commit() {
  fs::path old;
  if (const std::error_code error = MoveOldAway(old)) return error;
  std::error_code error;
  fs::rename(path_, target_, error);
  std::error_code ignored;
  if (error) {
    if (!old.empty()) fs::rename(old, target_, ignored);
    return error;
  }
  path_.clear();
  guard_.reset();
  if (!old.empty()) fs::remove_all(old, ignored);
  return {};
}

}  // namespace quorvantis
