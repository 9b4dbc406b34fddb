// SPDX-License-Identifier: MIT
#include "editor/EditorTest.h"
#include "shell/commands/ReplaceCommand.h"

namespace quorvantis::test {
namespace {

class ReplaceCommandTest : public EditorTest {
 protected:
  std::vector<PlannedReplacement> Plan(const FrameSetExam& planned, const std::u16string& replacement) {
    const TextSearch search({u"colour"});
    return PlanReplacements(planned, search, ReplacementText(replacement, false)).replacements;
  }
};

TEST_F(ReplaceCommandTest, ReplacesWhatIsPossibleAndTellsTheRest) {
  exam.Question(2).text = u"colour and Colour";
  exam.Question(3).text = u"colour";
  exam.Question(4).attachmentNames[0] = u"colour.png";
  Type(FormField::Text, u"a colour, typed");
  const FrameSetExam planned = SearchedExam(editor);
  exam.Question(3).text = u"the colour";  // by another command
  const ReplaceOutcome outcome = ReplaceHits(editor, planned, Plan(planned, u"hue"));
  EXPECT_EQ(outcome.replaced, 3u);
  EXPECT_EQ(editor.questions.Form().text, u"a hue, typed");
  EXPECT_EQ(exam.Question(2).text, u"hue and hue");
  EXPECT_EQ(exam.Question(3).text, u"the colour");
  ASSERT_EQ(outcome.leftAlone.size(), 2u);
  EXPECT_EQ(outcome.leftAlone[0].why, ReplacementObstacle::FileName);
  EXPECT_EQ(outcome.leftAlone[1].place.question, 3);
  EXPECT_EQ(outcome.leftAlone[1].why, std::nullopt);
  EXPECT_TRUE(Modified());
}

TEST_F(ReplaceCommandTest, AnExamThatStaysAsItIsIsNotModified) {
  exam.Question(2).text = u"colour";
  const FrameSetExam planned = SearchedExam(editor);
  std::vector<PlannedReplacement> same = Plan(planned, u"hue");
  same[0].text = u"colour";
  ReplaceHits(editor, planned, same);
  EXPECT_FALSE(Modified());
}

}  // namespace
}  // namespace quorvantis::test
