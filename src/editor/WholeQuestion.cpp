// SPDX-License-Identifier: MIT
#include "editor/WholeQuestion.h"

#include "model/LongAnswerFlags.h"

namespace quorvantis {

WholeQuestion WholeQuestionOf(const FrameSetExam& exam, const LongAnswerFlags& flags, int number) {
  WholeQuestion whole{exam.Question(number), flags.IsSet(number)};
  whole.question.attachmentCopies.fill({});  // they belong to the slot, which deletes them
  for (std::size_t i = 0; i < kMaxAttachments; ++i) {
    const std::u16string& path = whole.question.attachmentPaths[i];
    whole.hasContent[i] = !path.empty() && !exam.pathsWithoutContent.contains(path);
  }
  return whole;
}

}  // namespace quorvantis
