// SPDX-License-Identifier: MIT
// The copies of attached files that the editor keeps in work folders, from attaching to deletion. None of
// these operations shows an error: an attachment whose copy failed has no content.
#pragma once

#include "model/document/FrameSetExam.h"

#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace quorvantis {

/// Contains the copies of attached files; removed when the editor ends.
std::filesystem::path AttachmentWorkRoot(const std::filesystem::path& applicationFolder);

/// Creates that folder. A link in its place, which would redirect the copies, is removed.
void MakeWorkRoot(const std::filesystem::path& workRoot);

/// The folder in the work root for files from one place: the folders of `source` joined ("homedocs" for
/// /home/docs/photo.jpg), shortened where the name would be too long for a file system.
std::u16string SourceFolder(const std::filesystem::path& source);

/// The folder in it for one copy: the file's name with "~" and `counter` before its last dot ("photo~3.jpg"),
/// shortened likewise.
std::u16string CopyFolder(const std::filesystem::path& source, int counter);

/// Copies `source`, a full path, into the work root and returns the path of the copy, even if copying failed:
/// then `failure` tells why, and there is no file. The copy is an ordinary file, writable and never
/// executable.
std::filesystem::path MakeWorkCopy(const std::filesystem::path& workRoot, const std::filesystem::path& source,
                                   int counter, std::error_code& failure);

/// Remembers the files that a reader unpacked, for the deletions below.
void RecordCopies(FrameSetExam& exam);

/// Deletes the remembered copies of all questions, and the student folder of the last one if it is now empty.
void DeleteQuestionCopies(FrameSetExam& exam);

/// Deletes the remembered exam-level copies.
void DeleteExamCopies(FrameSetExam& exam);

/// Deletes the copies of both kinds that a reader unpacked.
void DeleteUnpackedCopies(FrameSetExam& exam);

/// The files of all attachments of an exam, of it and of its questions; may contain duplicates and files that
/// do not exist.
std::vector<std::filesystem::path> WorkCopiesOf(const FrameSetExam& exam);

}  // namespace quorvantis
