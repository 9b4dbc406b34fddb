// SPDX-License-Identifier: MIT
// The copies of attached files that the editor keeps in work folders, from attaching to deletion. None of
// these operations reports an error: a copy that could not be made is an attachment without content.
#pragma once

#include "model/document/FrameSetExam.h"

#include <filesystem>
#include <string>

namespace quorvantis {

/// Copies of attached files lie below this folder; it is removed when the editor ends.
std::filesystem::path AttachmentWorkRoot(const std::filesystem::path& applicationFolder);

/// Makes that folder; a link in its place, which would lead the copies elsewhere, is removed.
void MakeWorkRoot(const std::filesystem::path& workRoot);

/// The folder below the work root for files from one place: the folders of `source` run together ("homedocs"
/// for /home/docs/photo.jpg), shortened where no file system would take it.
std::u16string SourceFolder(const std::filesystem::path& source);

/// The folder below that for one copy: the file's name with "~" and `counter` before its last dot
/// ("photo~3.jpg"), shortened likewise.
std::u16string CopyFolder(const std::filesystem::path& source, int counter);

/// Copies `source`, a full path, into the work root and returns the copy's path, whether or not that worked.
/// The copy is an ordinary, writable, never executable file.
std::filesystem::path MakeWorkCopy(const std::filesystem::path& workRoot, const std::filesystem::path& source,
                                   int counter);

/// Remembers the files that a reader unpacked, for the deletions below.
void RecordCopies(FrameSetExam& exam);

/// Deletes the remembered copies of all questions, and the student folder that the last one lay in if that is
/// empty.
void DeleteQuestionCopies(FrameSetExam& exam);

/// Deletes the remembered exam-level copies.
void DeleteExamCopies(FrameSetExam& exam);

/// Deletes those of both that a reader has unpacked.
void DeleteUnpackedCopies(FrameSetExam& exam);

}  // namespace quorvantis
