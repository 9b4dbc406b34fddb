// SPDX-License-Identifier: MIT
#include "import/prepare/StepTable.h"

namespace quorvantis::test {
namespace {

TEST(AddingSteps, PutInWhatIsMissing) {
  constexpr StepRow kRows[] = {
      {u"SoftBreaks", u"1. a\vb\v2. c", u"1. a|b|2. c"},
      {u"OpenAnswers", u"1. Why?||2. How?|Answer: so|3. A. x|B. y||",
       u"1. Why?|⟦=⟧||2. How?|Answer: so|3. A. x|B. y|⟦=⟧"},
      {u"OpenAnswers", u"1. Why?|2.|Answer key|1. B", u"1. Why?|⟦=⟧|2.|Answer key|1. B"},
      {u"OpenAnswers", u"No question.", u"No question."},
      // Told by their options, by blank lines, by their answers.
      {u"Unnumbered", u"Test|Which?|A. x|B. y|Who?|A. p|B. q|C. r",
       u"Test|⟦1⟧ Which?|A. x|B. y|⟦2⟧ Who?|A. p|B. q|C. r"},
      {u"Unnumbered", u"Test||Choose.||What has|a tail?|a) x  b) y|c) z||Read this.||Who?|a) p  b) q",
       u"Test||Choose.||⟦1⟧ What has|a tail?|a) x  b) y|c) z||⟦2⟧ Read this.||Who?|a) p  b) q"},
      {u"Unnumbered", u"Тест||Кто?||а) я||б) ты||Где?||а) тут||б) там||Почему?",
       u"Тест||⟦1⟧ Кто?||а) я||б) ты||⟦2⟧ Где?||а) тут||б) там||⟦3⟧ Почему?"},
      {u"Unnumbered", u"History||Why was it lost?||Explain the war (5 points)||Who won?",
       u"History||⟦1⟧ Why was it lost?||⟦2⟧ Explain the war (5 points)||⟦3⟧ Who won?"},
      {u"Unnumbered", u"Why?|Answer: so|How?|Answer: thus|Who?|Answer: he",
       u"⟦1⟧ Why?|Answer: so|⟦2⟧ How?|Answer: thus|⟦3⟧ Who?|Answer: he"},
      {u"Unnumbered", u"Quiz|Name: ____||Who?|he|she||It is|so|no||Where?|in|out||End",
       u"Quiz|Name: ____||⟦1⟧ Who?|he|she||⟦2⟧ It is|so|no||⟦3⟧ Where?|in|out||End"},
      {u"Unnumbered", u"Quiz|It is|☐ so|☐ no|Who?|☐ he|☐ she",
       u"Quiz|⟦1⟧ It is|☐ so|☐ no|⟦2⟧ Who?|☐ he|☐ she"},
      {u"Unnumbered", u"Which?|A. x|B. y|Key B|Note: so|Who?|A. p|B. q|Key A|Note: no|Why?|A. s|B. t",
       u"⟦1⟧ Which?|A. x|B. y|Key B|Note: so|⟦2⟧ Who?|A. p|B. q|Key A|Note: no|⟦3⟧ Why?|A. s|B. t"},
      {u"Unnumbered", u"1. Which?|A. x|B. y|2. Who?|A. p|B. q", u"1. Which?|A. x|B. y|2. Who?|A. p|B. q"},
      {u"Unnumbered", u"She left.||He stayed.||\"Why?\" she said.||Nobody knew.||It rained.",
       u"She left.||He stayed.||\"Why?\" she said.||Nobody knew.||It rained."},
  };
  for (const StepRow& row : kRows) CheckStep(row);
}

TEST(AddingSteps, WriteTheLineEndsOfTheText) {
  CheckStep({u"OpenAnswers", u"1. Why?\r\n2. How?\r\n", u"1. Why?\r\n⟦=⟧\r\n2. How?\r\n⟦=⟧"});
  CheckStep({u"OpenAnswers", u"1. Why?\n2. How?", u"1. Why?\n⟦=⟧\n2. How?\n⟦=⟧"});
}

// The answer label would stay in the text: with a block of answers nothing looks for it.
TEST(AddingSteps, AddNoAnswerBesideABlockOfThem) {
  ImportSettings rules = PlainRules();
  rules.m_strChoiceAnswerPattern = u"^Choice:[^\\r]*";
  CheckStep({u"OpenAnswers", u"1. A. x|B. y|Choice: A", u"1. A. x|B. y|Choice: A"}, rules);
}

}  // namespace
}  // namespace quorvantis::test
