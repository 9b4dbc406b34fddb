// SPDX-License-Identifier: MIT
#include "WindowTest.h"

#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QTextDocument>

namespace quorvantis::test {
namespace {

using namespace std::string_literals;

class FieldEditing : public WindowTest {
 protected:
  void Paste(const char* name, const QString& text) {
    QApplication::clipboard()->setText(text);
    Press(name, Qt::Key_V, Qt::ControlModifier);
  }
  void Undo(const char* name) { Press(name, Qt::Key_Z, Qt::ControlModifier); }

  /// Input methods hand over finished text in this way.
  void Commit(const char* name, const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(&Control(name), &event);
  }

  /// Selects the units from `start` to `end` of option A.
  void SelectInOption(int start, int end) {
    QTextCursor cursor(Lines("optionA").document());
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    Lines("optionA").setTextCursor(cursor);
  }

  QString Option() { return Lines("optionA").document()->toRawText(); }

  /// The text of question 1 once the user has walked away.
  const ExamQuestion& Stored() {
    Press("questionText", Qt::Key_PageDown);
    return exam.Question(1);
  }
};

const QString kLong(250, 'x');

TEST_F(FieldEditing, TypingMarksTheExamOnlyAfterTheEvent) {
  Open();
  Type("title", "T");
  EXPECT_FALSE(ShowsChange());
  Turn();
  EXPECT_TRUE(ShowsChange());
}

TEST_F(FieldEditing, OverlongPasteIntoSeveralLinesIsRefusedAsAWhole) {
  exam.Question(1).options[0] = FromQString(kLong);
  Open();
  SelectInOption(10, 12);
  Paste("optionA", QString(9, 'y'));
  EXPECT_EQ(Option(), kLong);
  EXPECT_EQ(Lines("optionA").textCursor().anchor(), 10);
  EXPECT_EQ(Lines("optionA").textCursor().position(), 12);
  Turn();
  EXPECT_TRUE(ShowsChange());

  Paste("optionA", QString(8, 'y'));
  EXPECT_EQ(Option(), QString(10, 'x') + QString(8, 'y') + QString(238, 'x'));
  Undo("optionA");
  EXPECT_EQ(Option(), kLong);
}

TEST_F(FieldEditing, OverlongPasteIntoOneLineIsRefusedAsAWhole) {
  exam.title = FromQString(kLong);
  Open();
  Line("title").setSelection(10, 2);
  Paste("title", QString(9, 'y'));
  EXPECT_EQ(Line("title").text(), kLong);
  EXPECT_EQ(Line("title").selectedText(), "xx");
  Turn();
  EXPECT_TRUE(ShowsChange());

  Paste("title", QString(8, 'y'));
  EXPECT_EQ(Line("title").text().size(), 256);
  Undo("title");
  EXPECT_EQ(Line("title").text(), kLong);
}

TEST_F(FieldEditing, WhatWasTypedBeforeARefusedKeyCanBeUndone) {
  exam.title = exam.Question(1).options[0] = FromQString(kLong);
  Open();
  for (const char* name : {"title", "optionA"}) {
    Press(name, Qt::Key_End);
    Type(name, "abcdefgh");
    Undo(name);
  }
  EXPECT_EQ(Line("title").text(), kLong);
  EXPECT_EQ(Option(), kLong);
}

TEST_F(FieldEditing, ALineEndCountsTwo) {
  exam.Question(1).options[0] = std::u16string(254, u'x');
  Open();
  Press("optionA", Qt::Key_Return, Qt::ShiftModifier);
  Press("optionA", Qt::Key_Return);
  EXPECT_EQ(Option().size(), 255);
  EXPECT_EQ(Stored().options[0], u"\r\n" + std::u16string(254, u'x'));
}

TEST_F(FieldEditing, InputMethodsAreHeldToTheLimitToo) {
  exam.title = exam.Question(1).options[0] = FromQString(kLong);
  Open();
  for (const char* name : {"title", "optionA"}) {
    Commit(name, QStringLiteral("1234567"));
    Commit(name, QStringLiteral("水😀"));
  }
  EXPECT_EQ(Line("title").text(), "水😀" + kLong);
  EXPECT_EQ(Option(), "水😀" + kLong);
}

TEST_F(FieldEditing, RefusedDropLeavesTheTextWhereItCameFrom) {
  exam.title = exam.Question(1).options[0] = FromQString(kLong);
  Open();
  QMimeData text;
  text.setText("1234567");
  for (QWidget* target : {static_cast<QWidget*>(&Line("title")), Lines("optionA").viewport()}) {
    QDragEnterEvent enter({5, 5}, Qt::MoveAction, &text, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &enter);
    QDropEvent drop(QPointF(5, 5), Qt::MoveAction, &text, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &drop);
    EXPECT_FALSE(drop.isAccepted());
    EXPECT_EQ(drop.dropAction(), Qt::IgnoreAction);
  }
  EXPECT_EQ(Line("title").text(), kLong);
  EXPECT_EQ(Option(), kLong);
}

TEST_F(FieldEditing, UntouchedTextsComeBackUnitByUnit) {
  const std::u16string odd = u"\uFEFF a\rb\nc\r\nd\u00A0e\0f\xD800 g\xDC00\uFDD0\uFFFC\u2028\u2029"s;
  exam.title = odd;
  exam.Question(1).text = odd;
  exam.Question(1).options[0] = odd;
  exam.Question(1).answerText = odd;
  exam.Question(1).essayAnswer = odd;
  Open();
  Press("questionText", Qt::Key_End, Qt::ControlModifier);
  Type("questionText", "X");
  Press("title", Qt::Key_Home);
  Type("title", "X");
  EXPECT_EQ(Stored().text, odd + u"X");
  EXPECT_EQ(exam.title, u"X" + odd);
  EXPECT_EQ(exam.Question(1).options[0], odd);
  EXPECT_EQ(exam.Question(1).answerText, odd);
  EXPECT_EQ(exam.Question(1).essayAnswer, odd);
}

TEST_F(FieldEditing, UndoingEverythingGivesTheLoadedTextBack) {
  exam.Question(1).text = u"\rlone";
  Open();
  Press("questionText", Qt::Key_Delete);
  EXPECT_EQ(Lines("questionText").document()->toRawText(), "lone");
  Undo("questionText");
  EXPECT_EQ(Stored().text, u"\rlone");
}

TEST_F(FieldEditing, WalkingForgetsWhatCouldBeUndone) {
  Open();
  for (const char* name : {"title", "questionText"}) Type(name, "first");
  Click("next");
  for (const char* name : {"title", "questionText"}) Undo(name);
  EXPECT_EQ(Line("title").text(), "first");
  EXPECT_EQ(Lines("questionText").toPlainText(), "");
}

TEST_F(FieldEditing, ALoadedTextBeyondTheLimitCannotBeUndoneBackIn) {
  exam.title = exam.Question(1).options[0] = std::u16string(300, u'x');
  Open();
  for (const char* name : {"title", "optionA"}) {
    Press(name, Qt::Key_A, Qt::ControlModifier);
    Type(name, "short");
    Undo(name);
    Turn();
  }
  EXPECT_EQ(Line("title").text(), "short");
  EXPECT_EQ(Option(), "short");
}

TEST_F(FieldEditing, PasteTakesPlainTextAndCopyKeepsNoBreakSpaces) {
  exam.Question(1).options[0] = u"a\u00A0b";
  Open();
  Press("optionA", Qt::Key_A, Qt::ControlModifier);
  Press("optionA", Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), ToQString(u"a\u00A0b"));

  auto* rich = new QMimeData;
  rich->setHtml("<b>bold</b>");
  rich->setText("one\r\ntwo");
  QApplication::clipboard()->setMimeData(rich);
  Press("optionA", Qt::Key_V, Qt::ControlModifier);
  Press("title", Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Stored().options[0], u"one\r\ntwo");
  EXPECT_EQ(exam.title.find_first_of(u"\r\n<"), std::u16string::npos);
}

}  // namespace
}  // namespace quorvantis::test
