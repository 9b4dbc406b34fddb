// SPDX-License-Identifier: MIT
#include "BankWindowTest.h"

#include "desktop/bank/desk/BankHitText.h"
#include "model/AnswerLetters.h"

#include <random>

namespace quorvantis::test {
namespace {

TEST_F(BankWindowTest, FindsAndInsertsAsOneStep) {
  WriteExam("cells.exm", {u"What is <b>mitosis</b>?", u"What is a cell?"},
            WriteBytes(folder / "cell.png", "a picture"));
  WriteExam("birds.exm", {u"Do birds fly?"});
  exam.Question(1).text = u"The first";
  exam.CountQuestions();
  OpenBank();
  Find("", 3);
  Find("MITOS", 1);
  EXPECT_EQ(Control<QTextEdit>("bankQuestion").toPlainText(),
            QString("What is mitosis?\n%1A. yes\nB. no").arg(QString(QChar(0x2713)) + " "));
  QTest::keyClick(&Control("bankWords"), Qt::Key_Down);
  QTest::keyClick(&Control("bankHits"), Qt::Key_Return);
  ASSERT_EQ(QuestionCount(), 2);
  EXPECT_EQ(exam.Question(2).text, u"What is <b>mitosis</b>?");
  EXPECT_EQ(ReadBytes(TextToPath(exam.Question(2).attachmentPaths[0])), "a picture");
  Entry("editUndo").trigger();
  EXPECT_EQ(QuestionCount(), 1);
  EXPECT_TRUE(Control("bankWindow").isVisible());
}

TEST_F(BankWindowTest, ShowsNothingThatAnExamNoLongerHolds) {
  const fs::path cells = WriteExam("cells.exm", {u"What is mitosis?", u"What is a cell?"});
  OpenBank();
  Find("", 2);
  WriteExam("cells.exm", {u"What is a bird?"});
  Click("bankInsert");
  EXPECT_EQ(QuestionCount(), 0);
  EXPECT_EQ(world.dialogs.errors.size(), 1U);
  Find("mitosis", 0);
  Find("", 1);
  fs::remove(cells);
  Find("bird", 0);
}

TEST_F(BankWindowTest, IsClosedAndTypedIntoAtAnyMoment) {
  for (int i = 0; i < 30; ++i) WriteExam(("exam" + std::to_string(i) + ".exm").c_str(), {u"one", u"two"});
  OpenBank();
  std::minstd_rand random(7);
  const auto pause = [&random] { QTest::qWait(static_cast<int>(random() % 40)); };
  for (int i = 0; i < 50; ++i) {
    Control<QLineEdit>("bankWords").setText(i % 2 == 0 ? "one" : "tw");
    pause();
    if (i % 3 == 0) QTest::keyClick(&Control("bankWindow"), Qt::Key_Escape);
    pause();
    Entry("examBank").trigger();
  }
  Find("two", 30);
}

TEST(BankHitText, FollowsMarksThroughMarkup) {
  BankHit hit;
  hit.question.kind = QuestionKind::Choice;
  hit.question.text =
      std::u16string(80, u'x') + u" <i>red</i> \r\n 3 &lt; 4<!-- > --> &eacute;<BR>w<b>r</b>y <b blue";
  hit.question.options[1] = u"a <u>red</u> one";
  hit.question.answerMask = AnswerLettersToMask(u"b");
  const std::size_t red = hit.question.text.find(u"red");
  hit.highlights = {{ExamFieldName::QuestionText, 0, {red, red + 3}}, {ExamFieldName::Options, 1, {5, 8}}};
  const BankHitText excerpt = ExcerptOf(hit);
  ASSERT_EQ(excerpt.marks.size(), 1U);
  EXPECT_EQ(excerpt.marks[0].Of(excerpt.text), u"red");
  EXPECT_TRUE(excerpt.text.starts_with(u"…xxx")) << ToQString(excerpt.text).toStdString();
  EXPECT_TRUE(excerpt.text.ends_with(u"red 3 < 4 \u00E9 wry <b blue"))
      << ToQString(excerpt.text).toStdString();
  const BankHitText whole = WholeTextOf(hit);
  ASSERT_EQ(whole.marks.size(), 2U);
  for (const TextSpan& mark : whole.marks) EXPECT_EQ(mark.Of(whole.text), u"red");
  EXPECT_TRUE(whole.text.ends_with(u"\n\u2713 B. a red one"));
  hit.question.kind = QuestionKind::FillIn;
  hit.question.answerText = u"blue<@>dark red";
  hit.highlights = {{ExamFieldName::FillInAnswer, 0, {12, 15}}};
  const BankHitText answers = ExcerptOf(hit);
  EXPECT_EQ(answers.text, u"blue / dark red");
  ASSERT_EQ(answers.marks.size(), 1U);
  EXPECT_EQ(answers.marks[0].Of(answers.text), u"red");
}

}  // namespace
}  // namespace quorvantis::test
