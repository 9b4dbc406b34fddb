// SPDX-License-Identifier: MIT
// Linked with all of model/ and text/ and nothing else, so the link fails if model/ needs more.
#include "model/ExamPaper.h"

int main() {
  quorvantis::ExamPaper exam;
  exam.Question(2).text = u"text";
  exam.InsertQuestion(1);
  return exam.LastCountedQuestion() == 3 ? 0 : 1;
}
