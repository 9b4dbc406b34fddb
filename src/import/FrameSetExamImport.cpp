// SPDX-License-Identifier: MIT
// The operation of the exam document that reads questions from a marked text.
#include "import/marking/QuestionTextParser.h"
#include "model/document/ExamServices.h"
#include "model/document/FrameSetExam.h"

namespace quorvantis {

int FrameSetExam::ParseQuestions(int firstSlot, int pictureNumber, const std::u16string& markedText,
                                 const ImportSettings& rules, const std::function<bool()>& isCancelled,
                                 ReadPaper& paper) {
  paper = QuestionTextParser(rules, Services().debug, isCancelled).Parse(markedText, pictureNumber);
  return StoreQuestions(paper, *this, firstSlot);
}

}  // namespace quorvantis
