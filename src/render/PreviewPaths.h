// SPDX-License-Identifier: MIT
// Where the pages of a preview are, and the student folders.
#pragma once

#include <filesystem>
#include <string_view>

namespace quorvantis {

class FrameSetExam;
class AttachmentPageWriter;

/// Parent of all student folders, in the application folder or the current one.
inline constexpr std::u16string_view kStudentFolders = u"~BrelmStudent";

/// "TEMP/ExamPreview" in the application folder: the editor's pages.
std::filesystem::path EditorPageFolder(const std::filesystem::path& applicationFolder);

/// "~BrelmStudent/ID<n>", relative to the current directory: the pages of the student with that number, read
/// as a decimal ("007" is 7).
std::filesystem::path StudentPageFolder(std::u16string_view number);

/// The folder of the pages of `exam`, by its location mode.
std::filesystem::path PageFolder(const FrameSetExam& exam);

/// "SEE.htm": the page that a preview starts with.
std::filesystem::path MainPage(const FrameSetExam& exam);

/// "SEE1.htm": the questions, beside the main page.
std::filesystem::path QuestionPage(const FrameSetExam& exam);

/// "SEE2.htm": the files that are attached to the exam.
std::filesystem::path AttachmentPanePage(const FrameSetExam& exam);

/// "SEE2_<frame>.htm": a group of pictures and media in the attachment pane. Its folder follows from the
/// location and student of `writer`.
std::filesystem::path GroupPageFile(const AttachmentPageWriter& writer,
                                    const std::filesystem::path& applicationFolder, int frame);

}  // namespace quorvantis
