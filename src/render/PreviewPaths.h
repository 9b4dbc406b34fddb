// SPDX-License-Identifier: MIT
// Where the pages of a preview are.
#pragma once

#include <filesystem>

namespace quorvantis {

class FrameSetExam;
class AttachmentPageWriter;

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
