// SPDX-License-Identifier: MIT
#include "../../examfile/ExamBytes.h"
#include "desktop/WindowTest.h"
#include "desktop/overview/InsertFromExamDlg.h"
#include "desktop/overview/OverviewWindow.h"

#include <QClipboard>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>

namespace quorvantis::test {
namespace {

class OverviewTest : public WindowTest {
 protected:
  static std::u16string Name(int n) { return QString("question %1").arg(n).toStdU16String(); }

  void Fill(int count) {
    for (int n = 1; n <= count; ++n) {
      exam.Question(n).text = Name(n);
      exam.Question(n).options = {u"yes", u"no"};
      exam.Question(n).answerLetters = u"a";
      exam.Question(n).answerMask = 16;
    }
  }

  void OpenOverview(int questions) {
    Fill(questions);
    Open();
    QTest::keyClick(window.get(), Qt::Key_L, Qt::ControlModifier);
    overview = window->findChild<OverviewWindow*>();
    ASSERT_NE(overview, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(overview));
    table = overview->findChild<OverviewTable*>();
  }

  QString Cell(int row, int column) const {
    return table->model()->index(row, column).data(Qt::DisplayRole).toString();
  }
  QStringList Texts() const {
    QStringList texts;
    for (int row = 0; row < table->model()->rowCount(); ++row)
      texts.push_back(Cell(row, OverviewModel::Text));
    return texts;
  }
  static QStringList Named(std::initializer_list<int> numbers) {
    QStringList names;
    for (const int n : numbers) names.push_back(ToQString(Name(n)));
    return names;
  }
  QString Shown() { return Lines("questionText").toPlainText(); }
  QString Number() { return Control<QLabel>("questionNumber").text(); }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(table, key, modifiers); }

  OverviewWindow* overview = nullptr;
  OverviewTable* table = nullptr;
};

TEST_F(OverviewTest, ShowsTheChosenQuestionAndFollowsTheWindow) {
  OpenOverview(60);
  EXPECT_EQ(table->model()->rowCount(), 60);
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  EXPECT_EQ(Shown(), ToQString(Name(3)));
  EXPECT_EQ(Cell(2, OverviewModel::Key), "A");

  table->verticalScrollBar()->setValue(1);
  QSignalSpy resets(table->model(), &QAbstractItemModel::modelReset);
  Type("questionText", "Why? ");
  Click("boxA");
  QTRY_COMPARE(Cell(2, OverviewModel::Text), "Why? question 3");
  QTRY_COMPARE(Cell(2, OverviewModel::Key), "");
  EXPECT_EQ(table->verticalScrollBar()->value(), 1);
  EXPECT_TRUE(resets.empty());

  Press("questionText", Qt::Key_PageDown, Qt::ControlModifier);
  QTRY_COMPARE(table->currentIndex().row(), 12);
  QTest::keyPress(overview, Qt::Key_Control, Qt::ControlModifier);  // as it is while Ctrl+L opens it
  Entry("questionNext").trigger();
  QTRY_COMPARE(table->currentIndex().row(), 13);
  EXPECT_EQ(table->selectionModel()->selectedRows().size(), 1) << "Delete would take the other, too";
  QTest::keyRelease(overview, Qt::Key_Control);
  Entry("questionPrevious").trigger();
  QTRY_COMPARE(table->currentIndex().row(), 12);
  EXPECT_EQ(exam.Question(3).text, u"Why? question 3") << "stored by walking";
  const QString spoken = table->currentIndex().data(Qt::AccessibleTextRole).toString();
  EXPECT_FALSE(spoken.isEmpty());

  QTest::keyClick(overview, Qt::Key_Escape);
  EXPECT_FALSE(overview->isVisible());
  EXPECT_TRUE(window->isVisible());
}

TEST_F(OverviewTest, MovesSelectedRowsByKeysAndByDragging) {
  OpenOverview(6);
  Key(Qt::Key_Down);
  Key(Qt::Key_Down, Qt::ShiftModifier);  // 2 and 3
  Key(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(Texts(), Named({1, 4, 2, 3, 5, 6}));
  EXPECT_EQ(table->SelectedRows(), (std::vector{2, 3}));
  Key(Qt::Key_Up, Qt::AltModifier);
  Key(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(Texts(), Named({2, 3, 1, 4, 5, 6}));
  Key(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(Texts(), Named({2, 3, 1, 4, 5, 6})) << "it is the first already";
  emit table->RowsDropped(5);
  EXPECT_EQ(Texts(), Named({1, 4, 5, 2, 3, 6}));
  emit table->RowsDropped(6);
  EXPECT_EQ(Texts(), Named({1, 4, 5, 6, 2, 3}));
  EXPECT_EQ(Shown(), ToQString(Name(3))) << "the question that was shown";
  Turn();
  EXPECT_TRUE(ShowsChange());
}

TEST_F(OverviewTest, FiltersAndMovesAmongTheRowsThatAreLeft) {
  OpenOverview(30);
  exam.Question(20).kind = QuestionKind::Essay;
  overview->findChild<QLineEdit*>("filterText")->setText("QUESTION 2");
  EXPECT_EQ(Texts(), Named({2, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29}));
  table->selectRow(1);
  EXPECT_EQ(Shown(), ToQString(Name(20)));
  Key(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(Texts(), Named({20, 2, 21, 22, 23, 24, 25, 26, 27, 28, 29}));
  EXPECT_EQ(exam.Question(2).text, Name(20));
  overview->findChild<QComboBox*>("filterKind")->setCurrentIndex(3);
  EXPECT_EQ(Texts(), Named({20}));
  EXPECT_EQ(Shown(), ToQString(Name(20))) << "a filter walks nowhere";
}

TEST_F(OverviewTest, CopiesBetweenProgramsAndAfterTheEnd) {
  OpenOverview(4);
  Key(Qt::Key_Down, Qt::AltModifier);
  Key(Qt::Key_Up, Qt::AltModifier);
  Key(Qt::Key_Down);
  Key(Qt::Key_Down, Qt::ShiftModifier);
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(table->SelectedRows(), (std::vector{1, 2})) << "not what was moved before";
  const QMimeData* copied = QApplication::clipboard()->mimeData();
  EXPECT_EQ(copied->text(), "2. question 2\nA. yes\nB. no\n\n3. question 3\nA. yes\nB. no\n");
  EXPECT_TRUE(copied->html().contains("<b>2.</b> question 2<br>A. yes"));
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Texts(), Named({1, 2, 3, 2, 3, 4}));

  QApplication::clipboard()->clear();  // as when the program has ended
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Texts(), Named({1, 2, 3, 2, 2, 3, 3, 4}));
  EXPECT_TRUE(world.dialogs.errors.empty());

  auto* damaged = new QMimeData;
  damaged->setData("application/x-quorvantis-questions", "no exam at all");
  QApplication::clipboard()->setMimeData(damaged);
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(world.dialogs.errors.size(), 1U);
  QApplication::clipboard()->setText("something else");
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(world.dialogs.errors.size(), 2U);
  EXPECT_EQ(table->model()->rowCount(), 8);
}

TEST_F(OverviewTest, DeletesDuplicatesAndTellsWhichScoresChanged) {
  exam.scoreMode = ScoreMode::Custom;
  exam.scoreFrom = {1, 3};
  exam.scoreTo = {2, 500};
  exam.scoreValue = {1, 5};
  OpenOverview(5);
  const auto* status = overview->findChild<QLabel*>("overviewStatus");
  QTest::keyClick(table, Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(Texts(), Named({1, 1, 2, 3, 4, 5}));
  EXPECT_EQ(status->text(), "[1512 1] [1516 3]") << "question 3 was question 2";
  Key(Qt::Key_Delete);
  EXPECT_EQ(Texts(), Named({1, 2, 3, 4, 5}));
  Key(Qt::Key_Down);
  Key(Qt::Key_Down, Qt::ShiftModifier);
  Key(Qt::Key_Delete);
  EXPECT_EQ(Texts(), Named({1, 2, 5}));
  EXPECT_EQ(table->SelectedRows(), std::vector{2}) << "the question that is shown now";
  QTest::keyClick(table, Qt::Key_Z, Qt::ControlModifier);  // the main window's
  QTRY_COMPARE(Texts(), Named({1, 2, 3, 4, 5}));
  EXPECT_EQ(status->text(), "");
  Key(Qt::Key_A, Qt::ControlModifier);
  Key(Qt::Key_Delete);
  EXPECT_EQ(exam.LastCountedQuestion(), 0);
  EXPECT_EQ(table->model()->rowCount(), 1) << "the empty question that is shown";
}

TEST_F(OverviewTest, InsertsTickedQuestionsOfAnotherExam) {
  Fill(3);
  ASSERT_TRUE(exam.WriteExamFile(folder / "other.exm"));
  for (int n = 4; n <= 499; ++n) exam.Question(n).text = u"mine";
  OpenOverview(3);
  world.dialogs.filesToOpen.push_back(folder / "other.exm");
  QTimer::singleShot(0, overview, [this] {
    auto* dialog = overview->findChild<InsertFromExamDlg*>();
    ASSERT_NE(dialog, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
    auto* insert = dialog->findChild<QPushButton*>("insertTicked");
    auto* rows = dialog->findChild<OverviewTable*>();
    EXPECT_FALSE(insert->isEnabled()) << "nothing is ticked";
    QTest::mouseClick(dialog->findChild<QPushButton*>("tickAll"), Qt::LeftButton);
    EXPECT_FALSE(insert->isEnabled()) << "there is room for one";
    QTest::keyClick(rows, Qt::Key_Space);
    QTest::keyClick(rows, Qt::Key_Down);
    QTest::keyClick(rows, Qt::Key_Space);
    EXPECT_EQ(dialog->Ticked(), std::vector{3});
    QTest::mouseClick(insert, Qt::LeftButton);
  });
  overview->findChild<QAction*>("overviewInsertFrom")->trigger();
  EXPECT_TRUE(QTest::qWaitForWindowActive(overview)) << "the next key is for the questions";
  EXPECT_EQ(exam.Question(2).text, Name(3));
  EXPECT_EQ(exam.Question(500).text, u"mine");
  EXPECT_TRUE(world.dialogs.errors.empty());
}

TEST_F(OverviewTest, TellsWhatCannotBeInsertedBeforeItIsChosen) {
  const TypedExam typed{
      .questions = {{.kind = u"0", .text = u"x", .files = std::vector<TypedFile>(11, {u"f", "c"})}}};
  OpenOverview(1);
  world.dialogs.filesToOpen.push_back(
      WriteBytes(folder / "foreign.exm", test::Type(AllForms()[0], typed).bytes));
  QStringList told;
  QTimer::singleShot(0, overview, [&] {
    auto* dialog = overview->findChild<InsertFromExamDlg*>();
    ASSERT_NE(dialog, nullptr);
    for (const auto* label : dialog->findChildren<QLabel*>()) told.push_back(label->text());
    dialog->reject();
  });
  overview->findChild<QAction*>("overviewInsertFrom")->trigger();
  EXPECT_TRUE(told.contains("[1820 [1822 1]]")) << qPrintable(told.join('|'));
}

TEST_F(OverviewTest, RemembersItsPlace) {
  OpenOverview(2);
  overview->resize(700, 400);
  table->setColumnWidth(OverviewModel::Text, 222);
  overview->close();
  window.reset();
  OpenOverview(2);
  EXPECT_EQ(overview->size(), QSize(700, 400));
  EXPECT_EQ(table->columnWidth(OverviewModel::Text), 222);
}

}  // namespace
}  // namespace quorvantis::test
