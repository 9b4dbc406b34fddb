// SPDX-License-Identifier: MIT
#include "render/PreviewPaths.h"

#include "model/WorkFolderNames.h"
#include "model/document/ExamServices.h"
#include "model/document/FrameSetExam.h"

#include <string>

namespace quorvantis {
namespace fs = std::filesystem;

fs::path PageFolder(const FrameSetExam& exam) {
  return exam.locationMode != 0 ? EditorPageFolder(exam.Services().applicationFolder)
                                : StudentPageFolder(exam.workFolder);
}

fs::path MainPage(const FrameSetExam& exam) {
  return PageFolder(exam) / "SEE.htm";
}
fs::path QuestionPage(const FrameSetExam& exam) {
  return PageFolder(exam) / "SEE1.htm";
}
fs::path AttachmentPanePage(const FrameSetExam& exam) {
  return PageFolder(exam) / "SEE2.htm";
}

fs::path GroupPageFile(const AttachmentPageWriter& writer, const fs::path& applicationFolder, int frame) {
  const fs::path folder = writer.locationMode != 0 ? EditorPageFolder(applicationFolder)
                                                   : StudentPageFolder(writer.studentIdText);
  return folder / ("SEE2_" + std::to_string(frame) + ".htm");
}

}  // namespace quorvantis
