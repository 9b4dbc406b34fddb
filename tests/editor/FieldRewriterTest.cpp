// SPDX-License-Identifier: MIT
#include "editor/EditorTest.h"

namespace quorvantis::test {
namespace {

class FieldRewriterTest : public EditorTest {};

TEST_F(FieldRewriterTest, RewritesStoredAndUnstoredTextsAsOneCommand) {
  using enum ExamFieldName;
  exam.Question(2).answerText = u"old";
  Type(FormField::Text, u"typed");
  Type(FormField::Title, u"title");
  Turn();
  const int before = loads;
  const std::u16string longAnswer(300, u'x');
  EXPECT_TRUE(editor.texts
                  .Rewrite({{{}, u"title", u"new title"},
                            {{1, QuestionText}, u"typed", u"new text"},
                            {{2, FillInAnswer}, u"old", longAnswer}})
                  .empty());
  EXPECT_EQ(loads, before + 1);
  EXPECT_EQ(editor.questions.Form().text, u"new text");
  EXPECT_EQ(editor.questions.Form().title, u"new title");
  EXPECT_EQ(exam.Question(2).answerText, longAnswer);
  EXPECT_TRUE(world.longAnswerFlags.IsSet(2));
}

TEST_F(FieldRewriterTest, LeavesAloneWhatHasChangedOrDoesNotFit) {
  using enum ExamFieldName;
  exam.Question(3).text = u"now";
  exam.Question(3).attachmentNames[0] = u"a.jpg";
  exam.Question(3).options[4] = u"e";
  const std::vector<FieldRewrite> impossible = {
      {{3, QuestionText}, u"then", u"x"},
      {{3, AttachmentName}, u"a.jpg", u"b.jpg"},
      {{3, Options, 4}, u"e", std::u16string(257, u'e')},
      {{501, QuestionText}, u"", u"x"},
      {{3, Options, 5}, u"", u"x"},
  };
  EXPECT_EQ(editor.texts.Rewrite(impossible).size(), impossible.size());
  EXPECT_EQ(loads, 1);
  EXPECT_FALSE(Modified());
  std::vector<FieldRewrite> some = impossible;
  some.push_back({{3, QuestionText}, u"now", u"later"});
  EXPECT_EQ(editor.texts.Rewrite(some).size(), impossible.size());
  EXPECT_EQ(exam.Question(3).text, u"later");
  EXPECT_TRUE(Modified());
}

}  // namespace
}  // namespace quorvantis::test
