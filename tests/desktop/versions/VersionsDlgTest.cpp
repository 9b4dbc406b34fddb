// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"
#include "desktop/versions/VersionsDlg.h"
#include "model/AnswerLetters.h"

#include <QSpinBox>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

class VersionsDlgTest : public WindowTest {
 protected:
  void SetUp() override {
    for (int number = 1; number <= 6; ++number) {
      ExamQuestion& question = exam.Question(number);
      question.text = u"Question " + PathToText(std::to_string(number));
      question.options = {u"red", u"blue", u"green", u"none of the above"};
      question.answerLetters = u"b";
      question.answerMask = AnswerLettersToMask(u"b");
    }
    exam.Question(4).text = u"In the picture above, what is it?";
    Open();
    world.dialogs.filesToSave = {folder / "exam.exm"};
    world.dialogs.yesNoAnswers = {true};
    Type("title", "Colours");
    Entry("examVersions").trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Versions()));
  }

  VersionsDlg& Versions() { return Control<VersionsDlg>("versions"); }
  QAbstractItemModel& Plan() { return *Control<QTableView>("versionPlan").model(); }
  QTreeWidget& Kept() { return Control<QTreeWidget>("versionKept"); }
  bool HasColumns(int count) {
    return QTest::qWaitFor([&] { return Plan().columnCount() == count; });
  }
  void MakeThem() {
    Click("versionMake");
    ASSERT_TRUE(QTest::qWaitFor([this] { return Control("versionMake").isEnabled(); }, 60'000));
  }

  const fs::path made = folder / "exam versions";
};

TEST_F(VersionsDlgTest, ShowsThePlanAndMakesIt) {
  EXPECT_TRUE(HasColumns(2));
  EXPECT_EQ(Plan().rowCount(), 6);
  Control<QSpinBox>("versionCount").setValue(3);
  ASSERT_TRUE(HasColumns(3));
  EXPECT_EQ(Control<QLineEdit>("versionNames").text(), "A,B,C");
  Kept().topLevelItem(1)->setCheckState(0, Qt::Checked);
  const auto keepsItsPlace = [this] { return Plan().index(1, 2).data().toString().startsWith("2 "); };
  EXPECT_TRUE(QTest::qWaitFor(keepsItsPlace));
  EXPECT_NE(Kept().topLevelItem(3)->text(1), "") << "it says why it stays behind the one before it";
  EXPECT_NE(Kept().topLevelItem(0)->child(3)->text(1), "");
  const QString shown = Plan().index(0, 1).data().toString();
  MakeThem();
  EXPECT_TRUE(fs::exists(made / "C.exm"));
  EXPECT_FALSE(Control("versionOffer").isVisible()) << "nothing is wrong";
  EXPECT_TRUE(Control("versionOpenFolder").isVisible());
  EXPECT_EQ(Plan().index(0, 1).data().toString(), shown);
  QTest::keyClick(&Versions(), Qt::Key_Escape);
  EXPECT_TRUE(QTest::qWaitFor([this] { return window->findChild<VersionsDlg*>() == nullptr; }));
  EXPECT_TRUE(window->isVisible());
  Entry("examVersions").trigger();
  EXPECT_EQ(Control<QSpinBox>("versionCount").value(), 3) << "what was chosen is kept in the plan";
  EXPECT_EQ(Kept().topLevelItem(1)->checkState(0), Qt::Checked);
  const std::string before = ReadBytes(made / "plan.json");
  MakeThem();
  EXPECT_EQ(ReadBytes(made / "plan.json"), before) << "not replaced without a yes";
  Click("versionNewSeed");
  world.dialogs.yesNoAnswers = {true};
  MakeThem();
  EXPECT_NE(ReadBytes(made / "plan.json"), before);
}

TEST_F(VersionsDlgTest, SaysWhatCannotBe) {
  Control<QLineEdit>("versionNames").setText("A,a/b");
  EXPECT_TRUE(QTest::qWaitFor([this] { return !Control("versionMake").isEnabled(); }));
  EXPECT_NE(Control<QPlainTextEdit>("versionReport").toPlainText(), "");
  EXPECT_EQ(Plan().rowCount(), 0);
  Control<QLineEdit>("versionNames").setText("A,B");
  EXPECT_TRUE(QTest::qWaitFor([this] { return Control("versionMake").isEnabled(); }));
  WriteBytes(made / "notes.txt", "mine");
  MakeThem();
  EXPECT_NE(Control<QLabel>("versionStatus").text(), "");
  EXPECT_EQ(CountEntries(made), 1);
}

}  // namespace
}  // namespace quorvantis::test
