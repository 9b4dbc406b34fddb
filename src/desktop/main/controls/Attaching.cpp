// SPDX-License-Identifier: MIT
#include "desktop/main/controls/Attaching.h"

#include "model/document/ExamServices.h"
#include "platform/UserDialogs.h"

#include <string>

namespace quorvantis {
namespace {

void ShowCopyProblem(const ExamEditor& editor, const std::u16string& problem) {
  if (!problem.empty()) editor.state.document.Services().dialogs.ShowWarning(problem);
}

}  // namespace

void AttachToExam(ExamEditor& editor) {
  editor.attachments.AttachExamFile();
  ShowCopyProblem(editor, editor.attachments.CopyProblem());
}

void AttachToQuestion(ExamEditor& editor) {
  editor.attachments.AttachQuestionFile();
  ShowCopyProblem(editor, editor.attachments.CopyProblem());
}

void AttachToQuestion(ExamEditor& editor, const std::vector<std::filesystem::path>& files) {
  std::u16string first;
  for (const std::filesystem::path& file : files) {
    editor.attachments.AttachQuestionFile(file);
    if (first.empty()) first = editor.attachments.CopyProblem();
  }
  ShowCopyProblem(editor, first);
}

}  // namespace quorvantis
