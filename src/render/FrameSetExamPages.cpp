// SPDX-License-Identifier: MIT
// The operations of the exam document that write pages.
#include "model/document/ExamServices.h"
#include "model/document/FrameSetExam.h"
#include "render/FramesetPage.h"
#include "render/PageFile.h"
#include "render/PageSources.h"
#include "render/QuestionPages.h"

namespace quorvantis {

void FrameSetExam::WritePreview(const std::filesystem::path& page) {
  AddPageSources(*this);
  if (examAttachmentPaths[0].empty()) {
    WriteQuestionPage(page);
  } else {
    WriteFrameset(*this, page);
  }
}

void FrameSetExam::WriteQuestionPage(const std::filesystem::path& page) {
  if (locationMode == 0) {
    WriteResultPage(page);
    return;
  }
  PageFile file(page, Services().pages);
  file.WriteUtf8(ComposeQuestionPage(*this));
}

void FrameSetExam::WriteResultPage(const std::filesystem::path& page) {
  PageFile file(page, Services().pages);
  file.WriteHalfUtf16(ComposeResultPage(*this));
}

void FrameSetExam::WritePrintPage(const std::filesystem::path& page) {
  AddPageSources(*this);
  pageRenderer.SetPrintLayout(1);
  PageFile file(page, Services().pages);
  file.WriteHalfUtf16(ComposePrintPage(*this));
  pageRenderer.SetPrintLayout(0);
}

}  // namespace quorvantis
