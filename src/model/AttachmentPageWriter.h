// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamLimits.h"

#include <array>

namespace quorvantis {

/// Writes the frames and pages of the exam-level attachments; its state lives in the document.
struct AttachmentPageWriter {
  std::array<int, kMaxAttachments> frameKinds{};  ///< kind of each attachment frame 1 to 10; 0 when unused
};

}  // namespace quorvantis
