// SPDX-License-Identifier: MIT
#include "model/FrameSetExam.h"

namespace quorvantis {

FrameSetExam::FrameSetExam(ExamServices& services) : services_(&services) {}

void FrameSetExam::Reset() {
  ExamPaper::Reset();
  examAttachmentPaths.fill({});
  examAttachmentNames.fill({});
  displayNamesAmongPaths.clear();
  examAttachmentTypes.fill(0);
  attachmentPageWriter.frameKinds.fill(0);
  boundaryQuestion = 0;
}

}  // namespace quorvantis
