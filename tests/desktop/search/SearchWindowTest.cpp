// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"
#include "desktop/search/HitRoles.h"
#include "desktop/search/ReplaceAllDlg.h"
#include "desktop/search/SearchWindow.h"

namespace quorvantis::test {
namespace {

class SearchWindowTest : public WindowTest {
 protected:
  void SetUp() override {
    exam.title = u"Colours";
    exam.Question(1).text = u"What colour\r\nis\rthe colour?";
    exam.Question(1).options[1] = u"a colour";
    exam.Question(3).kind = QuestionKind::FillIn;
    exam.Question(3).answerText = u"colour<@>hue";
    exam.Question(3).attachmentNames[0] = u"colour.png";
    exam.Question(3).attachmentPaths[0] = u"/nowhere/colour.png";
    Open();
    QTest::keyClick(window.get(), Qt::Key_H, Qt::ControlModifier);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Search()));
  }

  SearchWindow& Search() { return Control<SearchWindow>("searchWindow"); }
  QTreeView& Hits() { return Control<QTreeView>("hits"); }
  int Count() { return Hits().model()->rowCount(); }
  bool Finds(int count) {
    return QTest::qWaitFor([&] { return Count() == count && Control<QLabel>("hitCount").text() != ""; });
  }
  QString Cell(int row, int column) { return Hits().model()->index(row, column).data().toString(); }

  void Find(const QString& text, int count) {
    Control<QLineEdit>("find").setText(text);
    ASSERT_TRUE(Finds(count));
  }
  void PressNext() {
    QTest::keyClick(&Control("find"), Qt::Key_Return);
    QTest::qWait(50);
  }
  int Question() { return Control<QLabel>("questionNumber").text().toInt(); }
};

TEST_F(SearchWindowTest, ListsHitsAndShowsEachInItsField) {
  Find("colour", 6);
  EXPECT_EQ(Cell(0, 0) + Cell(0, 1) + Cell(3, 0) + Cell(3, 1) + Cell(3, 2), "[1560 %s]1[1562 B]a colour");
  PressNext();
  EXPECT_EQ(Line("title").selectedText(), "Colour");
  PressNext();
  PressNext();
  EXPECT_EQ(Lines("questionText").textCursor().selectionStart(), 19);  // every line end is one character here
  EXPECT_EQ(Lines("questionText").textCursor().selectedText(), "colour");
  PressNext();
  EXPECT_EQ(window->focusWidget(), &Control("optionB"));
  PressNext();
  EXPECT_EQ(Question(), 3);
  EXPECT_EQ(Line("answer").selectedText(), "colour");
  QTest::keyClick(&Search(), Qt::Key_F3);
  EXPECT_EQ(window->focusWidget(), &Control("questionAttachments"));
  QTest::keyClick(&Search(), Qt::Key_F3);
  EXPECT_EQ(window->focusWidget(), &Control("title"));
  QTest::keyClick(&Search(), Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(window->focusWidget(), &Control("questionAttachments"));
  EXPECT_FALSE(ShowsChange());
}

TEST_F(SearchWindowTest, TheListFollowsTheExam) {
  Find("colour", 6);
  Type("questionText", "colour ");
  EXPECT_TRUE(Finds(7));
  Click("deleteQuestion");
  EXPECT_TRUE(Finds(3));
  Control<QCheckBox>("wholeWords").click();
  EXPECT_TRUE(Finds(2));
}

TEST_F(SearchWindowTest, ReplacesAHitOnceItHasBeenSeen) {
  Find("colour", 6);
  Control<QCheckBox>("matchCase").click();
  ASSERT_TRUE(Finds(5));
  Control<QLineEdit>("replacement").setText("hue");
  Click("replaceOne");
  EXPECT_EQ(Lines("questionText").toPlainText(), "What colour\nis\nthe colour?");
  Click("replaceOne");
  ASSERT_TRUE(Finds(4));
  EXPECT_EQ(Lines("questionText").toPlainText(), "What hue\nis\nthe colour?");
  EXPECT_EQ(Lines("questionText").textCursor().selectedText(), "colour");
  EXPECT_TRUE(ShowsChange());
  Click("replaceOne");
  ASSERT_TRUE(Finds(3));
  EXPECT_EQ(exam.Question(1).text, u"What hue\r\nis\rthe hue?");
}

TEST_F(SearchWindowTest, ReplacesAllThatIsTicked) {
  Find("colour", 6);
  Control<QLineEdit>("replacement").setText("");
  QTimer timer;  // fires while the list waits for its answer
  QObject::connect(&timer, &QTimer::timeout, [&] {
    if (Search().findChild<ReplaceAllDlg*>() == nullptr) return;
    timer.stop();
    auto& list = *Search().findChild<ReplaceAllDlg*>();
    auto& rows = *list.findChild<QTreeView*>("replacements")->model();
    ASSERT_EQ(rows.rowCount(), 6);
    const auto tick = [&](int row) { return rows.index(row, 0).data(Qt::CheckStateRole).toInt(); };
    EXPECT_EQ(tick(3), Qt::Checked);
    EXPECT_EQ(tick(4), Qt::Unchecked);  // one of two answers would be empty
    EXPECT_EQ(tick(5), Qt::Unchecked);  // a name of a file
    EXPECT_FALSE(rows.setData(rows.index(4, 0), Qt::Checked, Qt::CheckStateRole));
    EXPECT_TRUE(rows.setData(rows.index(1, 0), Qt::Unchecked, Qt::CheckStateRole));
    EXPECT_EQ(rows.index(2, 3).data(), "What colour is the ?");
    QTest::keyClick(&list, Qt::Key_Return);
  });
  timer.start(20);
  Click("replaceAll");
  ASSERT_TRUE(Finds(3));
  EXPECT_EQ(exam.title, u"s");
  EXPECT_EQ(exam.Question(1).text, u"What colour\r\nis\rthe ?");
  EXPECT_EQ(exam.Question(3).answerText, u"colour<@>hue");
}

TEST_F(SearchWindowTest, ALongPatternCanBeCancelledWhileTheWindowWorks) {
  exam.Question(5).text = std::u16string(4000, u'a');
  Control<QCheckBox>("pattern").click();
  Control<QLineEdit>("find").setText("((a{0,1000}){0,1000}){0,1000}(\\1)*b");
  auto& cancel = Control<QPushButton>("cancelSearch");
  ASSERT_TRUE(QTest::qWaitFor([&] { return cancel.isVisible(); }));
  Type("title", "still ");
  EXPECT_EQ(Line("title").text(), "still Colours");
  ASSERT_TRUE(QTest::qWaitFor([&] { return cancel.isVisible(); }));
  QTest::mouseClick(&cancel, Qt::LeftButton);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !cancel.isVisible(); }));
  EXPECT_EQ(Control<QLabel>("searchNotice").text(), "[1587 %s]");
}

TEST_F(SearchWindowTest, EscapeClosesItAloneAndItRemembersItsPlace) {
  Control<QCheckBox>("pattern").click();
  Search().setGeometry(40, 50, 600, 400);
  QTest::keyClick(&Search(), Qt::Key_Escape);
  EXPECT_FALSE(Search().isVisible());
  EXPECT_TRUE(window->isVisible());
  window.reset();
  Open();
  QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(Search().size(), QSize(600, 400));
  EXPECT_TRUE(Control<QCheckBox>("pattern").isChecked());
  EXPECT_FALSE(Control("replacement").isVisible());
}

}  // namespace
}  // namespace quorvantis::test
