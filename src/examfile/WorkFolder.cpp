// SPDX-License-Identifier: MIT
#include "examfile/WorkFolder.h"

#include "text/NumberText.h"
#include "text/PathText.h"

#include <string>
#include <system_error>
#include <vector>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

bool IsLink(const fs::path& path) {
  std::error_code ignored;
  return fs::is_symlink(fs::symlink_status(path, ignored));
}

bool IsFolder(const fs::path& path) {
  std::error_code ignored;
  return fs::is_directory(fs::symlink_status(path, ignored));
}

bool IsSameFile(const fs::path& path, const fs::path& other) {
  std::error_code ignored;
  return !other.empty() && fs::equivalent(path, other, ignored);
}

/// The entries of a folder, listed completely before any is removed.
std::vector<fs::path> Entries(const fs::path& folder) {
  std::error_code error;
  std::vector<fs::path> entries;
  for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
    entries.push_back(it->path());
  }
  return entries;
}

/// Gives the owner permission to list the folder and delete in it.
void MakeWritable(const fs::path& folder) {
  std::error_code ignored;
  fs::permissions(folder, fs::perms::owner_all, fs::perm_options::add, ignored);
}

}  // namespace

fs::path WorkFolder(const ExamPaper& exam, const fs::path& applicationFolder) {
  if (exam.locationMode != 0) return applicationFolder / "TEMP" / "ExamPreview" / "~tt";
  const std::u16string folder = u"ID" + FormatInteger(ParseInteger(exam.workFolder));
  return fs::path("~BrelmStudent") / TextToPath(folder) / "~tt";
}

void PrepareWorkFolder(const ExamPaper& exam, const fs::path& applicationFolder, const fs::path& keep) {
  const fs::path folder = WorkFolder(exam, applicationFolder);
  std::error_code ignored;
  if (exam.locationMode != 0) fs::create_directories(folder.parent_path(), ignored);
  if (IsLink(folder)) fs::remove(folder, ignored);
  ClearFolderTree(folder, keep);
  RemoveEmptyFolder(folder);
  fs::create_directory(folder, ignored);
}

void ClearFolderTree(const fs::path& folder, const fs::path& keep) {
  if (!IsFolder(folder)) return;
  MakeWritable(folder);
  for (const fs::path& entry : Entries(folder)) {
    std::error_code ignored;
    if (IsFolder(entry)) {
      ClearFolderTree(entry, keep);
      fs::remove(entry, ignored);
    } else if (IsLink(entry) || !IsSameFile(entry, keep)) {
      fs::remove(entry, ignored);
    }
  }
}

void RemoveFolder(const fs::path& folder) {
  std::error_code ignored;
  if (!IsLink(folder)) ClearFolderTree(folder);
  fs::remove(folder, ignored);
}

void RemoveEmptyFolder(const fs::path& folder) {
  std::error_code ignored;
  if (IsFolder(folder)) fs::remove(folder, ignored);
}

}  // namespace quorvantis
