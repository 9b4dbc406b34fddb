// SPDX-License-Identifier: MIT
// Linked with all of model/ and with text/ and nothing else: it does not link when model/ needs more.
#include "model/ExamPaper.h"

int main() {
  quorvantis::ExamPaper exam;
  exam.Question(2).text = u"text";
  exam.InsertQuestion(1);
  return exam.LastCountedQuestion() == 3 ? 0 : 1;
}
