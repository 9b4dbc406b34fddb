// SPDX-License-Identifier: MIT
#include "recovery/RecoveryFolder.h"

#include "examfile/WorkFolder.h"
#include "platform/FolderEntries.h"
#include "platform/SecondNames.h"
#include "platform/WholeFile.h"
#include "text/PathText.h"

#include <algorithm>
#include <chrono>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

std::int64_t SecondsNow() {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::seconds>(now).count();
}

bool IsRegular(const fs::path& file) {
  std::error_code ignored;
  return fs::is_regular_file(fs::symlink_status(file, ignored));
}

/// A copy that is not a link is recognised by its modification time.
bool IsCopyOf(const fs::path& copy, const fs::path& source) {
  std::error_code error;
  if (fs::equivalent(copy, source, error)) return true;
  const auto size = fs::file_size(source, error);
  return !error && fs::file_size(copy, error) == size &&
         fs::last_write_time(copy, error) == fs::last_write_time(source, error) && !error;
}

}  // namespace

fs::path RecoveryRoot(const fs::path& applicationFolder) {
  return applicationFolder / "recovery";
}

fs::path RecoveryFilePath(const fs::path& folder) {
  return folder / "exam";
}

fs::path RecoveryLinkPath(const fs::path& folder, int number) {
  return folder / ("file-" + std::to_string(number));
}

/// The file goes first: what a sudden end leaves behind is then not a copy.
void RemoveRecoveryCopy(const fs::path& folder) {
  std::error_code ignored;
  fs::remove(RecoveryFilePath(folder), ignored);
  RemoveFolder(folder);
  RemoveEmptyFolder(folder.parent_path());
}

std::error_code RecoveryFolder::MakeFolder() {
  if (Exists()) return {};
  std::error_code error;
  fs::create_directories(root_, error);
  for (int number = 1; !error; ++number) {
    const fs::path folder = root_ / std::to_string(number);
    if (fs::create_directory(folder, error)) {
      folder_ = folder;
      return {};
    }
    if (error == std::errc::file_exists) error.clear();
  }
  return error;
}

/// The number of the link to a work copy; nothing when there is neither. A link outlives its work copy, and
/// one to old content is better than none.
std::optional<int> RecoveryFolder::Link(const std::u16string& path) {
  const fs::path source = TextToPath(path);
  const auto known = links_.find(path);
  const auto former = known == links_.end() ? std::nullopt : std::optional(known->second);
  if (former && (!IsRegular(source) || IsCopyOf(RecoveryLinkPath(folder_, *former), source))) return former;
  do ++lastLink_;
  while (fs::exists(fs::symlink_status(RecoveryLinkPath(folder_, lastLink_))));
  const fs::path link = RecoveryLinkPath(folder_, lastLink_);
  if (!LinkOrCopy(source, link)) {
    if (IsRegular(source)) missing_ = std::make_error_code(std::errc::io_error);
    return former;
  }
  newLinks_.push_back(link);
  return lastLink_;
}

/// A file that could not be linked must not keep the texts from being saved.
std::error_code RecoveryFolder::Write(const ExamSnapshot& snapshot) {
  if (const auto error = MakeFolder()) return error;
  RecoveryFile file{SecondsNow(), {}, snapshot.content};
  newLinks_.clear();
  missing_.clear();
  for (const std::u16string& path : snapshot.files) {
    if (file.links.contains(path)) continue;
    if (const auto number = Link(path)) file.links[path] = *number;
  }
  const std::string bytes = ComposeRecoveryFile(file);
  if (const auto error = SaveWholeFile(files_, RecoveryFilePath(folder_), bytes)) {
    RemoveNewLinks();
    return error;
  }
  const bool linksChanged = file.links != links_;
  links_ = std::move(file.links);
  if (linksChanged || !tidy_) RemoveUnused();
  tidy_ = true;
  return missing_;
}

/// Otherwise each attempt would leave more of them on a full disk, whole copies where there are no links.
void RecoveryFolder::RemoveNewLinks() const {
  std::error_code ignored;
  for (const fs::path& link : newLinks_) fs::remove(link, ignored);
}

/// Removes links of earlier copies, and half-written files of a killed process.
void RecoveryFolder::RemoveUnused() const {
  std::set<fs::path> used{RecoveryFilePath(folder_)};
  for (const auto& [path, number] : links_) used.insert(RecoveryLinkPath(folder_, number));
  for (const fs::path& entry : EntriesOf(folder_)) {
    std::error_code ignored;
    if (!used.contains(entry)) fs::remove(entry, ignored);
  }
}

void RecoveryFolder::Remove() {
  if (Exists()) RemoveRecoveryCopy(folder_);
  Release();
}

void RecoveryFolder::Adopt(fs::path folder) {
  folder_ = std::move(folder);
  links_.clear();
  lastLink_ = 0;
  tidy_ = false;
}

}  // namespace quorvantis
