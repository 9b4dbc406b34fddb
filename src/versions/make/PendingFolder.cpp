// SPDX-License-Identifier: MIT
#include "versions/make/PendingFolder.h"

#include "platform/FolderEntries.h"

#include <string>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

constexpr int kNameTries = 1000;

// Hidden names: a dot, one of these, and a number. They are short, so that they are possible wherever that of
// the target is.
constexpr std::string_view kMaking = "making-versions-";
constexpr std::string_view kOld = "old-versions-";            // may be needed again
constexpr std::string_view kReplaced = "replaced-versions-";  // is being removed

/// Without a slash at the end, behind which there would be an empty name; of a link, the folder it leads to.
fs::path FolderNamed(const fs::path& target) {
  std::error_code error;
  fs::path folder = fs::weakly_canonical(target, error);
  if (error) folder = fs::absolute(target, error);
  return folder.has_filename() ? folder : folder.parent_path();
}

}  // namespace

PendingFolder::PendingFolder(const fs::path& target, FolderGuard* guard) : target_(FolderNamed(target)) {
  if (guard != nullptr) RemoveAbandoned(*guard);
  Create(guard);
}

void PendingFolder::RemoveAbandoned(FolderGuard& guard) const {
  for (const fs::path& entry : EntriesOf(target_.parent_path())) {
    const std::string name = entry.filename().string();
    const auto isOurs = [&name](std::string_view kind) {
      const std::size_t number = 1 + kind.size();
      return name.compare(0, number, "." + std::string(kind)) == 0 && name.size() > number &&
             name.find_first_not_of("0123456789", number) == name.npos;
    };
    if (isOurs(kMaking) || isOurs(kReplaced)) guard.RemoveIfAbandoned(entry);
  }
}

void PendingFolder::Create(FolderGuard* guard) {
  for (int number = 1; number <= kNameTries && path_.empty() && !error_; ++number) {
    const fs::path candidate = HiddenName(kMaking, number);
    // False without an error if it exists already.
    if (!fs::create_directory(candidate, error_)) continue;
    if (guard != nullptr) held_ = guard->Hold(candidate);
    // Another program may have taken it for abandoned before it was held.
    if (guard == nullptr || held_ != nullptr) path_ = candidate;
  }
  if (path_.empty() && !error_) error_ = std::make_error_code(std::errc::file_exists);
}

PendingFolder::~PendingFolder() {
  std::error_code ignored;
  if (!path_.empty()) fs::remove_all(path_, ignored);
}

fs::path PendingFolder::HiddenName(std::string_view kind, int number) const {
  return target_.parent_path() / ("." + std::string(kind) + std::to_string(number));
}

/// `old` becomes the hidden name of what has had the name; it stays empty if there is nothing.
std::error_code PendingFolder::MoveOldAway(fs::path& old) const {
  std::error_code error;
  if (!fs::exists(fs::symlink_status(target_, error))) return {};
  int number = 1;
  while (fs::exists(fs::symlink_status(HiddenName(kOld, number), error))) ++number;
  fs::rename(target_, HiddenName(kOld, number), error);
  if (!error) old = HiddenName(kOld, number);
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
  held_.reset();
  if (!old.empty()) RemoveOld(old);
  return {};
}

/// Under a name that tells that nobody needs it, should the program be killed on the way.
void PendingFolder::RemoveOld(const fs::path& old) const {
  std::error_code error;
  int number = 1;
  do {
    fs::rename(old, HiddenName(kReplaced, number), error);
  } while (error && ++number <= kNameTries);
  fs::remove_all(error ? old : HiddenName(kReplaced, number), error);
}

}  // namespace quorvantis
