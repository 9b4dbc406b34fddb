// SPDX-License-Identifier: MIT
// The operation of the exam document that reads questions from a marked text.
#include "import/QuestionTextParser.h"
#include "model/FrameSetExam.h"
#include "platform/ExamServices.h"
#include "platform/Progress.h"
#include "platform/UserDialogs.h"

namespace quorvantis {

int FrameSetExam::ParseQuestions(int firstSlot, int pictureNumber, const std::u16string& markedText,
                                 const std::u16string& questionPattern, const std::u16string& judgementAnswer,
                                 const std::u16string& judgementBlock, const std::u16string& choiceAnswer,
                                 const std::u16string& choiceBlock) {
  ImportSettings rules;
  rules.m_strPattern = questionPattern;
  rules.m_strJudgementAnswer = judgementAnswer;
  rules.m_strJudgementAnswerPattern = judgementBlock;
  rules.m_strChoiceAnswer = choiceAnswer;
  rules.m_strChoiceAnswerPattern = choiceBlock;
  const CancelHook isCancelled = [this] { return Services().progress.IsCancelled(); };
  const ReadPaper paper =
      QuestionTextParser(rules, Services().debug, isCancelled).Parse(markedText, pictureNumber);
  const bool wasCancelled = paper.failure && paper.failure->reason == ImportFailure::Reason::Cancelled;
  if (paper.failure && !wasCancelled)
    Services().dialogs.ShowError(FailureText(*paper.failure, Services().strings));
  return StoreQuestions(paper, *this, firstSlot);
}

}  // namespace quorvantis
