// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"

#include <array>

namespace quorvantis {

class LongAnswerFlags;

/// A question with everything that belongs to it, outside of the exam that it came from. Its attached files
/// are named by paths of files that somebody else owns: copy them before that owner goes.
struct WholeQuestion {
  ExamQuestion question;
  bool longAnswer = false;                         ///< to be saved with the long form of a fill-in answer
  std::array<bool, kMaxAttachments> hasContent{};  ///< by attached file; otherwise no file exists at its path
};

/// Question `number`, 1 to 500, of `exam`.
WholeQuestion WholeQuestionOf(const FrameSetExam& exam, const LongAnswerFlags& flags, int number);

}  // namespace quorvantis
