// SPDX-License-Identifier: MIT
#include "bank/index/BankIndex.h"
#include "desktop/WindowTest.h"
#include "desktop/bank/BankHitText.h"
#include "desktop/bank/BankWindow.h"
#include "examfile/ExamFileWriter.h"
#include "model/AnswerLetters.h"

#include <QListView>

#include <random>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

class BankWindowTest : public WindowTest {
 protected:
  BankWindowTest() {
    for (const char* variable : {"XDG_CACHE_HOME", "XDG_DATA_HOME"})
      qputenv(variable, (folder.Path() / variable).string().c_str());
  }

  fs::path WriteExam(const char* name, const std::vector<std::u16string>& texts,
                     const fs::path& attached = {}) {
    FrameSetExam other(services);
    other.title = u"Life";
    for (std::size_t i = 0; i < texts.size(); ++i) {
      ExamQuestion& question = other.Question(static_cast<int>(i) + 1);
      question.text = texts[i];
      question.options = {u"yes", u"no"};
      question.answerLetters = u"a";
    }
    if (!attached.empty()) {
      other.Question(1).attachmentPaths[0] = PathToText(attached);
      other.Question(1).attachmentNames[0] = PathToText(attached.filename());
    }
    other.CountQuestions();
    fs::create_directories(folder / "exams");
    EXPECT_FALSE(ExamFileWriter(other, services).Write(folder / "exams" / name));
    return folder / "exams" / name;
  }

  void OpenBank() {
    BankProblem problem;
    auto index = BankIndex::Open(UsualBankPlace(), files, problem);
    ASSERT_TRUE(index && !index->AddFolder(folder / "exams").IsAnything());
    Open();
    Entry("examBank").trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Control<BankWindow>("bankWindow")));
  }

  int Found() { return Control<QListView>("bankHits").model()->rowCount(); }
  void Find(const QString& words, int found) {
    Control<QLineEdit>("bankWords").setText(words);
    EXPECT_TRUE(QTest::qWaitFor([this, found] { return Found() == found; }, 20'000)) << Found();
  }
  int QuestionCount() {
    exam.CountQuestions();
    return exam.LastCountedQuestion();
  }
};

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
  hit.question.text = std::u16string(80, u'x') + u" <i>red</i> \r\n 3 &lt; 4<!-- > --> &eacute; <b blue";
  hit.question.options[1] = u"a <u>red</u> one";
  hit.question.answerMask = AnswerLettersToMask(u"b");
  const std::size_t red = hit.question.text.find(u"red");
  hit.highlights = {{ExamFieldName::QuestionText, 0, {red, red + 3}}, {ExamFieldName::Options, 1, {5, 8}}};
  const BankHitText excerpt = ExcerptOf(hit);
  ASSERT_EQ(excerpt.marks.size(), 1U);
  EXPECT_EQ(excerpt.marks[0].Of(excerpt.text), u"red");
  EXPECT_TRUE(excerpt.text.starts_with(u"…xxx")) << ToQString(excerpt.text).toStdString();
  EXPECT_TRUE(excerpt.text.ends_with(u"red 3 < 4 \u00E9 <b blue")) << ToQString(excerpt.text).toStdString();
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
