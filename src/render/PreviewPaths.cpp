// SPDX-License-Identifier: MIT
#include "render/PreviewPaths.h"

#include "model/document/ExamServices.h"
#include "model/document/FrameSetExam.h"
#include "text/NumberText.h"
#include "text/PathText.h"

#include <string>

namespace quorvantis {
namespace fs = std::filesystem;

fs::path EditorPageFolder(const fs::path& applicationFolder) {
  return applicationFolder / "TEMP" / "ExamPreview";
}

fs::path StudentPageFolder(std::u16string_view number) {
  return TextToPath(kStudentFolders) / ("ID" + std::to_string(ParseInteger(number)));
}

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
