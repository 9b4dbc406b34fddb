// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamLimits.h"
#include "model/PageRenderer.h"

#include <array>

namespace quorvantis {

/// Settings and results of the pages that show the exam-level attachments.
class AttachmentPageWriter : public PageRenderer {
 public:
  int locationMode = 0;                           ///< the document's at the time of the last attachment pane
  std::array<int, kMaxAttachments> frameKinds{};  ///< of frame 1 (at index 0) to 10; 0 when unused

  int& FrameKind(int frame) { return frameKinds[static_cast<std::size_t>(frame - 1)]; }
};

}  // namespace quorvantis
