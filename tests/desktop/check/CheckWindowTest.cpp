// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"
#include "desktop/check/CheckWindow.h"

#include <QTreeView>

namespace quorvantis::test {
namespace {

class CheckWindowTest : public WindowTest {
 protected:
  void SetUp() override {
    exam.Question(1).text = u"What is blue?";
    exam.Question(1).options = {u"sky", u"grass"};
    exam.Question(3).kind = QuestionKind::FillIn;
    exam.Question(3).text = u"The ____ is ____.";
    exam.Question(3).answerText = u"sea";
    Open();
  }

  void OpenCheck(int branches) {
    QTest::keyClick(window.get(), Qt::Key_F8);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Check()));
    ASSERT_TRUE(Finds(branches));
  }
  CheckWindow& Check() { return Control<CheckWindow>("checkWindow"); }
  QTreeView& Findings() { return Control<QTreeView>("findings"); }
  bool Finds(int branches) {
    return QTest::qWaitFor([&] { return Findings().model()->rowCount() == branches; });
  }
  QModelIndex Row(int branch, int row) {
    return Findings().model()->index(row, 0, Findings().model()->index(branch, 0));
  }
  void Choose(const QModelIndex& row) {
    Findings().setCurrentIndex(row);
    QTest::keyClick(&Findings(), Qt::Key_Return);
  }
  int Question() { return Control<QLabel>("questionNumber").text().toInt(); }
};

TEST_F(CheckWindowTest, ShowsThePlaceOfEachFinding) {
  OpenCheck(3);
  Choose(Row(2, 0));
  EXPECT_EQ(Question(), 3);
  EXPECT_EQ(window->focusWidget(), &Control("answer"));
  Choose(Row(0, 0));
  EXPECT_EQ(Question(), 1);
  EXPECT_EQ(window->focusWidget(), &Control("boxA"));
  QTest::keyClick(&Check(), Qt::Key_Escape);
  EXPECT_FALSE(Check().isVisible());
  EXPECT_TRUE(window->isVisible());
}

TEST_F(CheckWindowTest, FollowsTheExamAndWhatIsIgnored) {
  OpenCheck(3);
  Choose(Row(2, 0));
  Type("answer", "sea<@>blue");
  ASSERT_TRUE(Finds(2)) << "the second blank has an answer now";
  Findings().setCurrentIndex(Row(0, 0));
  Click("ignoreFinding");
  EXPECT_TRUE(Finds(1));
  Click("showIgnored");
  EXPECT_TRUE(Finds(2));
  Findings().setCurrentIndex(Row(0, 0));
  Click("ignoreFinding");
  Click("showIgnored");
  EXPECT_TRUE(Finds(2)) << "no longer ignored";
}

TEST_F(CheckWindowTest, MarksTheOverview) {
  QTest::keyClick(window.get(), Qt::Key_L, Qt::ControlModifier);
  auto& table = Control<QTableView>("overviewTable");
  const auto tip = [&](int row) {
    return table.model()->index(row, OverviewModel::Missing).data(Qt::ToolTipRole).toString();
  };
  EXPECT_TRUE(QTest::qWaitFor([&] { return !tip(0).isEmpty(); }));
  EXPECT_TRUE(tip(2).contains("1909")) << tip(2).toStdString();
}

TEST_F(CheckWindowTest, IsOfferedWhenAnExamWithMistakesIsPrinted) {
  auto& notice = Control("somethingIsWrong");
  EXPECT_FALSE(notice.isVisible());
  Click("print");
  ASSERT_TRUE(QTest::qWaitFor([&] { return notice.isVisibleTo(window.get()); }));
  Click("noticeOffer");
  EXPECT_FALSE(notice.isVisible());
  EXPECT_TRUE(Check().isVisible());
}

TEST_F(CheckWindowTest, IsOfferedWhenAnExamWithMistakesBecomesAPdfFile) {
  world.dialogs.filesToSave = {folder / "exam.pdf"};
  Entry("exportPdf").trigger();
  EXPECT_TRUE(QTest::qWaitFor([&] { return Control("somethingIsWrong").isVisibleTo(window.get()); }));
}

TEST_F(CheckWindowTest, IsOfferedWhenVersionsAreMadeOfAnExamWithMistakes) {
  const auto isOffered = [this] { return Control("versionOffer").isVisible(); };
  world.dialogs.filesToSave = {folder / "exam.exm"};
  world.dialogs.yesNoAnswers = {true};
  Entry("examVersions").trigger();
  ASSERT_TRUE(QTest::qWaitFor(isOffered));
  Click("versionCheck");
  EXPECT_TRUE(QTest::qWaitForWindowActive(&Check()));
  EXPECT_TRUE(QTest::qWaitFor([this] { return window->findChild<QWidget*>("versions") == nullptr; }));
}

}  // namespace
}  // namespace quorvantis::test
