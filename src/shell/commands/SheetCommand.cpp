// SPDX-License-Identifier: MIT
#include "shell/commands/SheetCommand.h"

#include "model/document/ExamServices.h"
#include "platform/PageStore.h"
#include "render/sheets/SheetPages.h"

namespace quorvantis {

void SheetCommand::Run() {
  editor_.questions.StoreCurrentQuestion();
  editor_.changes.CountQuestions();
  const FrameSetExam& exam = editor_.state.document;
  exam.Services().pages.Clear();
  show_(WriteSheet(exam, request_));
}

}  // namespace quorvantis
