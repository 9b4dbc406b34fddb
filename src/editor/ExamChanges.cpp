// SPDX-License-Identifier: MIT
#include "editor/ExamChanges.h"

namespace quorvantis {

void ExamChanges::RemoveQuestion(int number) {
  attachments_.RemoveQuestionAttachments(number);
  exam_.Change().DeleteQuestion(number);
}

void ExamChanges::SetScores(const ExamPaper& exam) {
  FrameSetExam& document = exam_.Change();
  document.scoreMode = exam.scoreMode;
  document.scoreFrom = exam.scoreFrom;
  document.scoreTo = exam.scoreTo;
  document.scoreValue = exam.scoreValue;
  state_.MarkModified();
}

void ExamChanges::KeepPageNotes(const FrameSetExam& pages) {
  FrameSetExam& document = exam_.Change();
  document.pageRenderer = pages.pageRenderer;
  document.attachmentPageWriter = pages.attachmentPageWriter;
  document.examAttachmentTypes = pages.examAttachmentTypes;
}

}  // namespace quorvantis
