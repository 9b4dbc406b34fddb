// SPDX-License-Identifier: MIT
#include "shell/session/CloseSequence.h"

#include "editor/WorkCopies.h"
#include "examfile/WorkFolder.h"
#include "model/document/ExamServices.h"

namespace quorvantis {

void RunCloseSequence(FrameSetExam& exam, OfficeControl* office) {
  if (exam.questionFilesUnpacked != 0) DeleteQuestionCopies(exam);
  if (exam.examFilesUnpacked != 0) DeleteExamCopies(exam);
  RemoveFolder(AttachmentWorkRoot(exam.Services().applicationFolder));
  if (office != nullptr) office->TrustApplicationFolder(false);
}

}  // namespace quorvantis
