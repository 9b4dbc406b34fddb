// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"
#include "desktop/studio/StudioWindow.h"
#include "platform/convert/Later.h"

#include <QClipboard>
#include <QLineEdit>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTableView>

#include <chrono>
#include <string>

namespace quorvantis::test {
namespace {

constexpr const char* kPaper =
    "Geography\n1. Where is Rome?\nA. Italy\nB. Spain\nAnswer: A\n2. Where is Oslo?\nA. Peru\nB. Norway\n"
    "Answer: B\n";

constexpr int kStudioPatience = 30'000;  // milliseconds, for a busy machine

class StudioWindowTest : public WindowTest {
 protected:
  void SetUp() override {
    paper = WriteBytes(folder / "paper.txt", kPaper);
    exam.Question(1).text = u"first";
    exam.Question(2).text = u"second";
    exam.Question(2).attachmentNames[0] = u"map.png";
    exam.Question(2).attachmentPaths[0] = PathToText(MakeFile("map.png"));
    Open();
    world.dialogs.filesToOpen = {paper};
    Entry("fileImportPaper").trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Studio()));
    ASSERT_TRUE(Settles());
  }

  StudioWindow& Studio() { return Control<StudioWindow>("studio"); }
  PaperView& View() { return Control<PaperView>("studioPaper"); }
  QTableView& Questions() { return Control<QTableView>("studioQuestions"); }
  QString Cell(int row, int column) { return Questions().model()->index(row, column).data().toString(); }
  QString Status() { return Control<QLabel>("studioStatus").text(); }

  /// Waits until what is shown can be imported.
  bool Settles() {
    return Settles([this] { return Control("studioSaveRules").isEnabled(); });
  }
  /// Runs `answer` on the next message box.
  void AnswerNext(std::function<void(QMessageBox&)> answer) {
    Later(Studio(), {}, [this, answer = std::move(answer)] {
      auto& box = Control<QMessageBox>("loseMarks");
      ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
      answer(box);
    });
  }
  bool Settles(const std::function<bool()>& isSo) { return QTest::qWaitFor(isSo, kStudioPatience); }
  void SelectText(const QString& text) {
    QTextCursor cursor(View().document());
    cursor.setPosition(static_cast<int>(View().toPlainText().indexOf(text)));
    cursor.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor, static_cast<int>(text.size()));
    View().setTextCursor(cursor);
    View().setFocus();
  }
  std::size_t Marks() {
    const QRegularExpression names("^mark[0-9]+$");
    return static_cast<std::size_t>(Studio().findChildren<QPushButton*>(names).size());
  }
  bool HasMarks(std::size_t count) {
    return Settles([&] { return Marks() == count && Control("studioSaveRules").isEnabled(); });
  }

  std::filesystem::path paper;
};

TEST_F(StudioWindowTest, ShowsTheQuestionsOfAPaperAndImportsThem) {
  ASSERT_EQ(Questions().model()->rowCount(), 2);
  EXPECT_EQ(Cell(0, QuestionListModel::Number) + Cell(0, QuestionListModel::Text) +
                Cell(0, QuestionListModel::Options) + Cell(0, QuestionListModel::Key),
            "3Where is Rome?A  Italy   B  SpainA");
  EXPECT_EQ(exam.Question(3).text, u"");
  Click("studioImport");
  EXPECT_FALSE(Studio().isVisible());
  EXPECT_EQ(exam.Question(2).text, u"second");
  EXPECT_EQ(exam.Question(3).text, u"Where is Rome?");
  EXPECT_EQ(exam.Question(4).options[1], u"Norway");
  EXPECT_EQ(exam.Question(4).answerLetters, u"B");
  EXPECT_TRUE(Entry("editUndoImport").isEnabled());
}

TEST_F(StudioWindowTest, InsertsWhereTheUserWants) {
  Control<QSpinBox>("targetNumber").setValue(2);
  EXPECT_EQ(Cell(0, QuestionListModel::Number), "2");
  Click("studioImport");
  EXPECT_EQ(exam.Question(1).text, u"first");
  EXPECT_EQ(exam.Question(2).text, u"Where is Rome?");
  EXPECT_EQ(exam.Question(3).text, u"Where is Oslo?");
  EXPECT_EQ(exam.Question(3).attachmentNames[0], u"");
  EXPECT_EQ(exam.Question(4).text, u"second");
  EXPECT_EQ(exam.Question(4).attachmentNames[0], u"map.png");
  world.dialogs.yesNoAnswers = {true};
  Entry("editUndoImport").trigger();
  EXPECT_EQ(exam.Question(2).text, u"second");
  EXPECT_EQ(exam.Question(2).attachmentNames[0], u"map.png");
  EXPECT_EQ(exam.Question(3).text, u"");
}

TEST_F(StudioWindowTest, EscapeLeavesTheExam) {
  QTest::keyClick(&View(), Qt::Key_Escape);
  EXPECT_FALSE(Studio().isVisible());
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(exam.Question(3).text, u"");
  EXPECT_FALSE(ShowsChange());
}

TEST_F(StudioWindowTest, MarksByKeysAndTakesThemBack) {
  QTest::keyClick(&View(), Qt::Key_1);
  EXPECT_EQ(Status(), "[1645 %s]");  // nothing is selected
  SelectText("2.");
  QTest::keyClick(&View(), Qt::Key_1);
  EXPECT_EQ(Status().left(5), "[1644");  // it is a number already
  SelectText("Geography");
  QTest::keyClick(&View(), Qt::Key_7);
  EXPECT_TRUE(HasMarks(1));
  SelectText("Italy");
  QTest::keyClick(&View(), Qt::Key_8);
  EXPECT_TRUE(HasMarks(2));
  QTest::keyClick(&View(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(HasMarks(1));
  QTest::keyClick(&View(), Qt::Key_Y, Qt::ControlModifier);
  EXPECT_TRUE(HasMarks(2));
  QTest::keyClick(&View(), Qt::Key_0);  // the cursor is behind "Italy"
  EXPECT_TRUE(HasMarks(1));
  Control<QToolButton>("takeBack0").click();
  EXPECT_TRUE(HasMarks(0));
  QTest::keyClick(&View(), Qt::Key_Delete);
  EXPECT_EQ(Status(), "[1646 %s]");
}

TEST_F(StudioWindowTest, AsksBeforeMarksAreLost) {
  SelectText("Geography");
  QTest::keyClick(&View(), Qt::Key_7);
  ASSERT_TRUE(HasMarks(1));
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
    AnswerNext([key](QMessageBox& box) { QTest::keyClick(&box, key); });
    QTest::keyClick(&View(), Qt::Key_Escape);
    EXPECT_TRUE(Studio().isVisible());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Studio()));
  }
  EXPECT_EQ(Marks(), 1U);
  AnswerNext([](QMessageBox& box) { box.findChild<QPushButton*>("closePaper")->click(); });
  QTest::keyClick(&View(), Qt::Key_Escape);
  EXPECT_FALSE(Studio().isVisible());
}

TEST_F(StudioWindowTest, TakesBackTheMarkOfAWholeLine) {
  SelectText("Geography");
  QTest::keyClick(&View(), Qt::Key_7);
  ASSERT_TRUE(HasMarks(1));
  SelectText("Geography\n");  // as a triple click does: the cursor is in the next line
  QTest::keyClick(&View(), Qt::Key_0);
  EXPECT_TRUE(HasMarks(0));
}

TEST_F(StudioWindowTest, TellsWhyAMarkIsNotFollowed) {
  SelectText("Italy");
  QTest::keyClick(&View(), Qt::Key_8);
  ASSERT_TRUE(HasMarks(1));
  EXPECT_TRUE(Settles([this] { return Status().startsWith("[1877"); }));
  EXPECT_EQ(Control<QLabel>("whyNot0").text().left(5), "[1874");
  EXPECT_EQ(Control("mark0").accessibleDescription().left(5), "[1874");
}

TEST_F(StudioWindowTest, AClickSelectsTheOther) {
  SelectText("Norway");
  QTextCursor cursor = View().textCursor();
  cursor.clearSelection();
  const QPoint place = View().cursorRect(cursor).center();
  QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, place);
  EXPECT_EQ(Questions().currentIndex().row(), 1);
}

TEST_F(StudioWindowTest, PaperAndQuestionsScrollTogether) {
  constexpr int kMany = 300;
  std::string text;
  for (int i = 1; i <= kMany; ++i) text += std::to_string(i) + ". What is it?\nA. this\nB. that\nAnswer: A\n";
  Studio().OpenPaper(WriteBytes(folder / "long.txt", text));
  ASSERT_TRUE(Settles([this] { return Questions().model()->rowCount() == kMany; }));
  Questions().scrollToBottom();
  EXPECT_GT(View().TopPlace(), text.size() * 3 / 4);
  View().verticalScrollBar()->setValue(0);
  EXPECT_EQ(Questions().rowAt(0), 0);
  Questions().setCurrentIndex(Questions().model()->index(150, 0));
  EXPECT_NEAR(static_cast<double>(View().TopPlace()), static_cast<double>(text.find("151. ")), 120);
}

TEST_F(StudioWindowTest, TriesRulesWhileTheyAreTyped) {
  Click("studioRules");
  auto& number = Control<QLineEdit>("rulePreQuestion");
  number.setFocus();
  number.selectAll();
  QTest::keyClicks(&number, "^2[.](");
  EXPECT_EQ(Control<QLabel>("statePreQuestion").text().left(5), "[1684");
  EXPECT_EQ(Status().left(5), "[1880");
  QTest::qWait(400);  // it has been tried
  EXPECT_FALSE(Control("studioImport").isEnabled());
  QTest::keyClick(&number, Qt::Key_Backspace);
  EXPECT_TRUE(Settles([this] { return Questions().model()->rowCount() == 1; }));
  ASSERT_TRUE(Settles());
  Click("studioUndo");
  EXPECT_TRUE(Settles([this] { return Questions().model()->rowCount() == 2; }));
  Click("studioRedo");
  EXPECT_TRUE(Settles([this] { return Questions().model()->rowCount() == 1; }));
  ASSERT_TRUE(Settles());
  Click("studioImport");
  EXPECT_EQ(exam.Question(3).text, u" Where is Oslo?");
}

TEST_F(StudioWindowTest, ReadsAPaperAgainThatHasChanged) {
  WriteBytes(paper, "1. One?\nAnswer: a\n2. Two?\nAnswer: b\n3. Three?\nAnswer: c\n");
  std::filesystem::last_write_time(paper,
                                   std::filesystem::file_time_type::clock::now() + std::chrono::hours(1));
  Click("studioImport");
  EXPECT_TRUE(Settles([this] { return Questions().model()->rowCount() == 3; }));
  EXPECT_EQ(exam.Question(3).text, u"");
  EXPECT_EQ(Status(), "[1634 %s]");
}

TEST_F(StudioWindowTest, TakesPastedText) {
  QGuiApplication::clipboard()->setText(QString(kPaper).replace("Rome", "Bonn"));
  Click("studioPaste");
  EXPECT_TRUE(Settles([this] { return Cell(0, QuestionListModel::Text) == "Where is Bonn?"; }));
  ASSERT_TRUE(Settles());
  Click("studioImport");
  EXPECT_EQ(exam.Question(3).text, u"Where is Bonn?");
  EXPECT_EQ(exam.Question(4).options[1], u"Norway");
}

}  // namespace
}  // namespace quorvantis::test
