// SPDX-License-Identifier: MIT
#include "model/LongAnswerFlags.h"

#include "model/ExamPaper.h"

namespace quorvantis {

void LongAnswerFlags::SetWhereNeeded(const ExamPaper& exam) {
  for (int number = 1; number <= kMaxQuestions; ++number) {
    SetIfLong(number, exam.Question(number).answerText);
  }
}

}  // namespace quorvantis
