// SPDX-License-Identifier: MIT
#include "shell/commands/PreviewCommand.h"

#include "platform/ExamServices.h"
#include "platform/PageStore.h"
#include "render/PreviewPaths.h"

namespace quorvantis {
namespace {

/// Creates the folder of the editor's pages. A student's folder must exist already; otherwise no pages are
/// written.
void MakePageFolder(const FrameSetExam& exam) {
  std::error_code ignored;
  if (exam.locationMode != 0) std::filesystem::create_directories(PageFolder(exam), ignored);
}

}  // namespace

void PreviewCommand::Run() {
  if (office_ != nullptr) office_->TrustApplicationFolder(true);
  questions_.StoreCurrentQuestion();
  exam_.CountQuestions();
  exam_.PrefixAttachmentPaths(1);
  if (office_ != nullptr) office_->processes.AskCloseOffice();
  exam_.SetRenderOption(languageId_);
  exam_.Services().pages.Clear();
  MakePageFolder(exam_);
  exam_.WritePreview(MainPage(exam_));
  show_(MainPage(exam_));
}

}  // namespace quorvantis
