// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"

#include <QLabel>
#include <QLineEdit>

namespace quorvantis::test {
namespace {

class UndoTest : public WindowTest {
 protected:
  QString Number() { return Control<QLabel>("questionNumber").text(); }
  /// As a user does, wherever the focus is.
  void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    Turn();
  }
  void Undo() { PressKey(Qt::Key_Z, Qt::ControlModifier); }
  void Redo() { PressKey(Qt::Key_Y, Qt::ControlModifier); }
};

TEST_F(UndoTest, TakesBackEveryCommandWhereverTheFocusIs) {
  Open();
  Type("questionText", "First");
  Type("optionA", "Yes");
  Click("boxB");
  Turn();
  PressKey(Qt::Key_X, Qt::AltModifier);
  Type("questionText", "Second");
  PressKey(Qt::Key_F, Qt::AltModifier);
  Turn();
  PressKey(Qt::Key_D, Qt::AltModifier);
  EXPECT_EQ(Lines("questionText").toPlainText(), "");
  EXPECT_TRUE(Entry("editUndo").text().startsWith("[1280")) << qPrintable(Entry("editUndo").text());
  Undo();
  EXPECT_EQ(Lines("questionText").toPlainText(), "Second");
  EXPECT_TRUE(Control<QAbstractButton>("kindFillIn").isChecked());
  Undo();
  EXPECT_TRUE(Control<QAbstractButton>("kindChoice").isChecked());
  Undo();
  EXPECT_EQ(Lines("questionText").toPlainText(), "");
  EXPECT_EQ(Number(), "2");
  Undo();
  EXPECT_EQ(Number(), "1");
  EXPECT_FALSE(Control<QAbstractButton>("boxB").isChecked());
  Undo();
  EXPECT_EQ(Lines("optionA").toPlainText(), "");
  EXPECT_EQ(QApplication::focusWidget(), &Control("optionA"));
  Undo();
  EXPECT_EQ(Lines("questionText").toPlainText(), "");
  EXPECT_FALSE(Entry("editUndo").isEnabled());
  for (int n = 0; n < 6; ++n) Redo();
  EXPECT_FALSE(Entry("editRedo").isEnabled());
  EXPECT_EQ(Number(), "2");
  EXPECT_EQ(Lines("questionText").toPlainText(), "");
  EXPECT_TRUE(ShowsChange());
}

TEST_F(UndoTest, PutsTheCursorWhereItWas) {
  Open();
  Type("questionText", "one two");
  PressKey(Qt::Key_Tab, Qt::NoModifier);
  Control("questionText").setFocus();
  QTextCursor cursor = Lines("questionText").textCursor();
  cursor.setPosition(3);
  Lines("questionText").setTextCursor(cursor);
  QTest::keyClicks(&Control("questionText"), "xyz");
  PressKey(Qt::Key_End, Qt::ControlModifier);
  Undo();
  EXPECT_EQ(Lines("questionText").toPlainText(), "one two");
  EXPECT_EQ(Lines("questionText").textCursor().position(), 3);
  Redo();
  EXPECT_EQ(Lines("questionText").textCursor().position(), 6);
}

TEST_F(UndoTest, PutsTheCursorAmongEqualLetters) {
  Open();
  auto& title = Control<QLineEdit>("title");
  auto& text = Lines("questionText");
  Type("title", "oooo");
  Type("questionText", "oooo");
  title.setFocus();
  title.setCursorPosition(2);
  QTest::keyClicks(&title, "oo");
  PressKey(Qt::Key_Home, Qt::NoModifier);
  Undo();
  EXPECT_EQ(title.cursorPosition(), 2);
  Redo();
  EXPECT_EQ(title.cursorPosition(), 4);
  text.setFocus();
  text.moveCursor(QTextCursor::Start);
  QTest::keyClick(&text, Qt::Key_Return);
  QTest::keyClicks(&text, "oo");
  PressKey(Qt::Key_End, Qt::ControlModifier);
  Undo();
  EXPECT_EQ(text.textCursor().position(), 1) << "a line end is a step of its own";
  Redo();
  EXPECT_EQ(text.textCursor().position(), 3);
}

TEST_F(UndoTest, ScoresAreOneStep) {
  exam.Question(1).text = exam.Question(2).text = u"text";
  exam.scoreMode = ScoreMode::Custom;
  exam.scoreTo.fill(0);
  exam.scoreTo[0] = 2;
  Open();
  ClickAndUse("scoreSetup", [&](QDialog& dialog) {
    auto* score = dialog.findChild<QLineEdit*>("rangeScore1");
    ASSERT_NE(score, nullptr);
    score->selectAll();
    QTest::keyClicks(score, "7");
    QTest::mouseClick(dialog.findChild<QAbstractButton*>("ok"), Qt::LeftButton);
  });
  EXPECT_EQ(exam.scoreValue[0], 7.0F);
  Entry("editUndo").trigger();
  EXPECT_EQ(exam.scoreValue[0], 1.0F);
}

}  // namespace
}  // namespace quorvantis::test
