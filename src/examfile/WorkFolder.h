// SPDX-License-Identifier: MIT
// The folder for the unpacked attached files of an exam, and the removal of folders.
#pragma once

#include "model/ExamPaper.h"

#include <filesystem>

namespace quorvantis {

/// Where the attached files of `exam` are unpacked: "TEMP/ExamPreview/~tt" in the application folder, or,
/// while `locationMode` is 0, "~BrelmStudent/ID<n>/~tt" relative to the current directory.
std::filesystem::path WorkFolder(const ExamPaper& exam, const std::filesystem::path& applicationFolder);

/// Empties or creates the work folder; `keep`, the exam about to be read, is not deleted. In the student
/// location only the last folder is created. Failures are ignored: unpacking will notice them.
void PrepareWorkFolder(const ExamPaper& exam, const std::filesystem::path& applicationFolder,
                       const std::filesystem::path& keep);

/// Deletes every file in `folder`, even read-only ones, and every subfolder. The folder itself stays, and so
/// does `keep` with the folders it lies in. Links are deleted, never followed; failures are ignored.
void ClearFolderTree(const std::filesystem::path& folder, const std::filesystem::path& keep = {});

/// Empties and removes a folder; if it is a link, removes only the link.
void RemoveFolder(const std::filesystem::path& folder);

/// Removes a folder only if it is empty.
void RemoveEmptyFolder(const std::filesystem::path& folder);

}  // namespace quorvantis
