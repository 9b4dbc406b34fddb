// SPDX-License-Identifier: MIT
#include "shell/commands/PreviewCommand.h"

#include "model/document/ExamServices.h"
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
  editor_.questions.StoreCurrentQuestion();
  editor_.changes.CountQuestions();
  editor_.changes.PrefixAttachmentPaths(1);
  if (office_ != nullptr) office_->processes.AskCloseOffice();
  editor_.changes.SetRenderOption(languageId_);
  FrameSetExam exam = editor_.state.document;  // its writers make notes
  exam.Services().pages.Clear();
  MakePageFolder(exam);
  exam.WritePreview(MainPage(exam));
  editor_.changes.KeepPageNotes(exam);
  show_(MainPage(exam));
}

}  // namespace quorvantis
