// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"
#include "desktop/dialogs/CScoreSetupDlg.h"
#include "shell/language/BuiltInStrings.h"

#include <QClipboard>
#include <QRadioButton>
#include <QWheelEvent>

namespace quorvantis::test {
namespace {

/// The dialog over an exam of 25 questions in the ranges 1-10 and 11-25, without a main window.
class ScoreSetupDialog : public testing::Test, public SetupOwner {
 protected:
  ScoreSetupDialog() {
    distribution.scoreFrom = {1, 11};
    distribution.scoreTo = {10, 25};
    distribution.scoreValue = {1, 2};
    distribution.scoreMode = ScoreMode::Custom;
  }
  ~ScoreSetupDialog() override { QApplication::setLayoutDirection(Qt::LeftToRight); }

  void Open() {
    setup.SetQuestionCount(25);
    setup.SetDistribution(distribution);
    dialog = std::make_unique<CScoreSetupDlg>(setup, *this, strings, nullptr);
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }
  template <class T = QLineEdit>
  T& Control(const char* name) {
    return *dialog->findChild<T*>(name);
  }
  void TypeOver(const char* name, const QString& text) {
    Control(name).setFocus();
    Control(name).selectAll();
    QTest::keyClicks(&Control(name), text);
  }
  void Drag(int fromQuestion, int toQuestion) {
    QWidget& bar = Control<QWidget>("rangeBar");
    const auto point = [&](int question) {
      const int x = bar.width() * question / 25;
      return QPoint(bar.isRightToLeft() ? bar.width() - x : x, bar.height() - 10);
    };
    QTest::mousePress(&bar, Qt::LeftButton, {}, point(fromQuestion));
    QTest::mouseMove(&bar, point(toQuestion));
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, point(toQuestion));
  }
  /// Ends and starts of the rows in use, as "1-10 11-25".
  QString Rows() {
    QString rows = "1-" + Control("rangeTo1").text();
    for (int range = 2; range <= 10; ++range) {
      const QString number = QString::number(range);
      const QString from = Control(qPrintable("rangeFrom" + number)).text();
      if (!from.isEmpty()) rows += " " + from + "-" + Control(qPrintable("rangeTo" + number)).text();
    }
    return rows;
  }

  BuiltInStrings strings;
  ScoreDistribution distribution;
  ScoreSetup setup;
  std::vector<int> previews;
  std::unique_ptr<CScoreSetupDlg> dialog;

 private:
  void PreviewFromSetup(int show) override { previews.push_back(show); }
};

TEST_F(ScoreSetupDialog, EndsAreSteppedByKeysAndWheel) {
  Open();
  QTest::keyClick(&Control("rangeTo1"), Qt::Key_Up);
  EXPECT_EQ(Rows(), "1-11 12-25");
  QTest::keyClick(&Control("rangeTo1"), Qt::Key_Down);
  const auto turn = [this](const char* name, int angle) {
    QWheelEvent event({5, 5}, {5, 5}, {}, {0, angle}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&Control(name), &event);
  };
  turn("rangeTo1", -60);
  EXPECT_EQ(Rows(), "1-10 11-25");
  turn("rangeTo1", -60);
  EXPECT_EQ(Rows(), "1-9 10-25");
  turn("rangeTo2", 120);  // there is no question 26
  turn("rangeTo3", -120);
  EXPECT_EQ(Rows(), "1-9 10-25");
}

TEST_F(ScoreSetupDialog, EndsAreDraggedInTheBar) {
  for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
    QApplication::setLayoutDirection(direction);
    Open();
    Drag(10, 4);
    EXPECT_EQ(Rows(), "1-4 5-25");
    Drag(25, 20);
    EXPECT_EQ(Rows(), "1-4 5-20 21-25");
    Control<QAbstractButton>("sameScores").click();
    Drag(20, 15);
    EXPECT_EQ(Rows(), "1-4 5-20 21-25");
  }
}

TEST_F(ScoreSetupDialog, OnlyItsButtonsAndTheCloseBoxEndIt) {
  Open();
  for (QWidget* control : dialog->findChildren<QWidget*>()) {
    if (!control->isVisible() || control->focusPolicy() == Qt::NoFocus) continue;
    control->setFocus();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) QTest::keyClick(control, key);
  }
  EXPECT_TRUE(dialog->isVisible());
  QTest::mouseClick(&Control<QAbstractButton>("scanQuestions"), Qt::LeftButton);
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(previews, std::vector{1});
  const std::function<void()> ends[] = {[this] { Control<QAbstractButton>("ok").click(); },
                                        [this] { Control<QAbstractButton>("cancel").click(); },
                                        [this] { dialog->close(); }};
  for (const auto& end : ends) {
    previews.clear();
    dialog->show();
    end();
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(dialog->result(), &end == &ends[0] ? QDialog::Accepted : QDialog::Rejected);
    EXPECT_EQ(previews, std::vector{0});
  }
}

TEST_F(ScoreSetupDialog, ScoreFieldsFilterKeysButNoPastes) {
  Open();
  QLineEdit& score = Control("rangeScore1");
  TypeOver("rangeScore1", "a1-.,2. 5e");
  EXPECT_EQ(score.text(), "1.25");
  QGuiApplication::clipboard()->setText("-3");
  score.selectAll();
  QTest::keyClick(&score, Qt::Key_Insert, Qt::ShiftModifier);
  EXPECT_EQ(score.text(), "-3");
}

using ScoreSettingsButton = WindowTest;

TEST_F(ScoreSettingsButton, StoresTheFormAndTakesOverOnOk) {
  exam.scoreMode = ScoreMode::Custom;
  exam.Question(25).text = u"last";
  Open();
  const auto shortenAnd = [this](const char* end) {
    ClickAndUse("scoreSetup", [end](QDialog& dialog) {
      EXPECT_EQ(dialog.windowModality(), Qt::WindowModal);
      dialog.findChild<QLineEdit*>("rangeTo1")->setText("5");
      QTest::mouseClick(dialog.findChild<QAbstractButton*>(end), Qt::LeftButton);
    });
  };
  shortenAnd("cancel");
  EXPECT_EQ(exam.scoreTo[0], 10);
  EXPECT_FALSE(ShowsChange());
  Type("questionText", "typed");
  shortenAnd("ok");
  EXPECT_EQ(exam.Question(1).text, u"typed");
  EXPECT_EQ(exam.scoreTo, (std::array{5, 25, 0, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_TRUE(ShowsChange());
}

}  // namespace
}  // namespace quorvantis::test
