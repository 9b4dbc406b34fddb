// SPDX-License-Identifier: MIT
#include "examfile/WorkFolder.h"

#include "model/WorkFolderNames.h"
#include "platform/FolderEntries.h"

#include <system_error>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

bool IsSameFile(const fs::path& path, const fs::path& other) {
  std::error_code ignored;
  return !other.empty() && fs::equivalent(path, other, ignored);
}

/// Gives the owner permission to list the folder and delete in it.
void MakeWritable(const fs::path& folder) {
  std::error_code ignored;
  fs::permissions(folder, fs::perms::owner_all, fs::perm_options::add, ignored);
}

}  // namespace

fs::path WorkFolder(const ExamPaper& exam, const fs::path& applicationFolder) {
  const fs::path pages =
      exam.locationMode != 0 ? EditorPageFolder(applicationFolder) : StudentPageFolder(exam.workFolder);
  return pages / kUnpackedFolder;
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
  for (const fs::path& entry : EntriesOf(folder)) {
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
