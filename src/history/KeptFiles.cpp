// SPDX-License-Identifier: MIT
#include "history/KeptFiles.h"

#include "platform/SecondNames.h"

#include <string>
#include <system_error>
#include <utility>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

bool IsFile(const fs::path& file) {
  std::error_code ignored;
  return fs::is_regular_file(fs::symlink_status(file, ignored));
}

}  // namespace

KeptFile::~KeptFile() {
  std::error_code ignored;
  fs::remove(name_, ignored);
}

bool KeptFile::Is(const fs::path& file) const {
  std::error_code ignored;
  return fs::equivalent(name_, file, ignored);
}

bool KeptFile::PutBack(const fs::path& file) const {
  if (Is(file)) return true;
  std::error_code ignored;
  fs::create_directories(file.parent_path(), ignored);
  fs::remove(file, ignored);
  return LinkOrCopy(name_, file, KeptFiles::kLargestCopy);
}

KeptFiles::~KeptFiles() {
  now_.clear();
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
}

/// Null when there is no such file, or it cannot be kept.
SharedFile KeptFiles::Keep(const fs::path& file) {
  if (!IsFile(file)) return nullptr;
  std::error_code ignored;
  if (lastName_ == 0) fs::remove_all(folder_, ignored);  // left by a program that was killed
  fs::create_directories(folder_, ignored);
  fs::path name = folder_ / std::to_string(++lastName_);
  return LinkOrCopy(file, name, kLargestCopy) ? std::make_shared<const KeptFile>(std::move(name)) : nullptr;
}

std::vector<FileChange> KeptFiles::Follow(const std::vector<fs::path>& files, bool replaced) {
  std::map<fs::path, SharedFile> before = std::exchange(now_, {});
  std::vector<FileChange> changes;
  for (const fs::path& file : files) {
    if (now_.contains(file)) continue;
    const auto known = before.find(file);
    const SharedFile old = known == before.end() ? nullptr : known->second;
    const bool same = old != nullptr && (old->Is(file) || !IsFile(file));
    const SharedFile kept = same ? old : Keep(file);
    now_[file] = kept;
    if (kept != old && (replaced || old == nullptr)) changes.push_back({file, old, kept});
    if (known != before.end()) before.erase(known);
  }
  for (auto& [file, old] : before) {
    if (old != nullptr) changes.push_back({file, std::move(old), nullptr});
  }
  return changes;
}

void KeptFiles::PutBack() const {
  for (const auto& [file, kept] : now_) {
    if (kept != nullptr) kept->PutBack(file);
  }
}

std::vector<fs::path> KeptFiles::Take(std::vector<FileChange>& changes, bool after) {
  std::vector<fs::path> failed;
  for (FileChange& change : changes) {
    SharedFile& left = after ? change.before : change.after;
    const SharedFile& wanted = after ? change.after : change.before;
    // Another program may have replaced the file since.
    if (left != nullptr && IsFile(change.file) && !left->Is(change.file)) left = Keep(change.file);
    if (wanted == nullptr) {
      now_.erase(change.file);
      continue;
    }
    now_[change.file] = wanted;
    if (!wanted->PutBack(change.file)) failed.push_back(change.file);
  }
  for (const auto& [file, kept] : now_) {
    if (kept != nullptr && !IsFile(file) && !kept->PutBack(file)) failed.push_back(file);
  }
  return failed;
}

}  // namespace quorvantis
