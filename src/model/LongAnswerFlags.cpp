// SPDX-License-Identifier: MIT
#include "model/LongAnswerFlags.h"

#include "model/ExamPaper.h"

namespace quorvantis {

void LongAnswerFlags::SetWhereNeeded(const ExamPaper& exam) {
  for (int number = 1; number <= kMaxQuestions; ++number) {
    if (exam.Question(number).answerText.size() > kMaxShortAnswer) Set(number);
  }
}

}  // namespace quorvantis
