// SPDX-License-Identifier: MIT
// The folder that the attached files of an exam are unpacked into, and the removal of folders.
#pragma once

#include "model/ExamPaper.h"

#include <filesystem>

namespace quorvantis {

/// Where the attached files of `exam` are unpacked: "TEMP/ExamPreview/~tt" in the application folder, or,
/// while `locationMode` is 0, "~BrelmStudent/ID<n>/~tt" relative to the current directory.
std::filesystem::path WorkFolder(const ExamPaper& exam, const std::filesystem::path& applicationFolder);

/// Empties the work folder, or makes it; a file that is `keep`, the exam about to be read, stays. In the
/// student location only the last folder is made. Failures are ignored: unpacking will notice.
void PrepareWorkFolder(const ExamPaper& exam, const std::filesystem::path& applicationFolder,
                       const std::filesystem::path& keep);

/// Deletes every file below `folder`, read-only ones too, and every sub-folder. The folder itself stays, and
/// so does the file that is `keep` with the folders it lies in. Links are deleted, never followed; failures
/// are ignored.
void ClearFolderTree(const std::filesystem::path& folder, const std::filesystem::path& keep = {});

/// Clears and removes a folder; of a link only the link.
void RemoveFolder(const std::filesystem::path& folder);

/// Removes a folder only if it is empty.
void RemoveEmptyFolder(const std::filesystem::path& folder);

}  // namespace quorvantis
