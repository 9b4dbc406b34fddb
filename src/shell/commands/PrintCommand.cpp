// SPDX-License-Identifier: MIT
#include "shell/commands/PrintCommand.h"

#include "model/document/ExamServices.h"
#include "platform/PageStore.h"

namespace quorvantis {
namespace {

/// Deliberately in the application folder itself, not in that of a student: addresses of attached files on
/// the page are relative to it.
std::filesystem::path PrintPage(const FrameSetExam& exam) {
  return exam.Services().applicationFolder / "exam_Print.htm";
}

}  // namespace

void PrintCommand::Run() {
  editor_.questions.StoreCurrentQuestion();
  editor_.changes.CountQuestions();
  FrameSetExam exam = editor_.state.document;
  exam.Services().pages.Clear();
  exam.WritePrintPage(PrintPage(exam));
  show_(PrintPage(exam));
}

}  // namespace quorvantis
