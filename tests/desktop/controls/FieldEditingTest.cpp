// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"

#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QTextDocument>
#include <QToolTip>

#include <random>

namespace quorvantis::test {
namespace {

using namespace std::string_literals;

class FieldEditing : public WindowTest {
 protected:
  void Undo(const char* name) { Press(name, Qt::Key_Z, Qt::ControlModifier); }
  void Paste(const char* name) { Press(name, Qt::Key_V, Qt::ControlModifier); }

  /// Question 1 after the user has moved to another one.
  const ExamQuestion& Stored() {
    Click("next");
    return exam.Question(1);
  }
};

/// A single-line and a multi-line field, both limited to 256 units.
class LimitedField : public FieldEditing, public testing::WithParamInterface<const char*> {
 protected:
  void OpenWith(int size) {
    exam.title = exam.Question(1).options[0] = std::u16string(size, u'x');
    Open();
  }
  QString Shown() {
    auto* line = dynamic_cast<OneLineField*>(&Control(name));
    return line != nullptr ? line->text() : Lines(name).document()->toRawText();
  }

  const char* const name = GetParam();
  const QString loaded = QString(250, 'x');
};

INSTANTIATE_TEST_SUITE_P(Fields, LimitedField, testing::Values("title", "optionA"));

TEST_P(LimitedField, TakesEachChangeAsAWholeOrNotAtAll) {
  OpenWith(250);
  std::minstd_rand random(5);
  int selected = 0;
  for (int step = 0; step < 150; ++step) {
    const QString before = Shown();
    for (auto more = random() % 4; more > 0 && selected < before.count('x'); --more, ++selected)
      Press(name, Qt::Key_Right, Qt::ShiftModifier);
    QString text(1 + static_cast<int>(random() % 9), 'y');
    if (step % 3 == 0) {
      QApplication::clipboard()->setText(text);
      Paste(name);
    } else if (step % 3 == 1) {
      QInputMethodEvent event;
      event.setCommitString(text);
      QCoreApplication::sendEvent(&Control(name), &event);
    } else {
      text = selected > 0 ? "" : "y";
      selected > 0 ? Press(name, Qt::Key_Delete) : Type(name, text);
    }
    const bool fits = before.size() - selected + text.size() <= 256;
    EXPECT_EQ(Shown().count('x'), before.count('x') - (fits ? selected : 0)) << step;
    EXPECT_EQ(Shown().count('y'), before.count('y') + (fits ? text.size() : 0)) << step;
    if (fits) selected = 0;
  }
  const QString last = Shown();
  for (int i = 0; i < 150; ++i) Undo(name);
  EXPECT_EQ(Shown(), loaded);
  for (int i = 0; i < 150; ++i) {
    Press(name, Qt::Key_Y, Qt::ControlModifier);
    Press(name, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  }
  EXPECT_EQ(Shown(), last);
}

TEST_P(LimitedField, TakesBackWhatIsBeingComposedWhenItWouldBeTooLong) {
  OpenWith(250);
  QInputMethodEvent composing("1234567", {});
  QCoreApplication::sendEvent(&Control(name), &composing);
  EXPECT_EQ(Shown(), loaded);
  QInputMethodEvent done;
  done.setCommitString("1234567");
  QCoreApplication::sendEvent(&Control(name), &done);
  Type(name, "abc");
  EXPECT_EQ(Shown(), "abc" + loaded);
}

TEST_P(LimitedField, TellsThatItRefuses) {
  OpenWith(256);
  Type(name, "y");
  EXPECT_EQ(QToolTip::text(), "[1011 256]");
  QToolTip::hideText();
}

TEST_P(LimitedField, LeavesARefusedDropWhereItCameFrom) {
  OpenWith(250);
  QMimeData text;
  text.setText("1234567");
  auto* area = dynamic_cast<QAbstractScrollArea*>(&Control(name));
  QWidget* target = area != nullptr ? area->viewport() : &Control(name);
  QDragEnterEvent enter({5, 5}, Qt::MoveAction, &text, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(target, &enter);
  QDropEvent drop(QPointF(5, 5), Qt::MoveAction, &text, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(target, &drop);
  EXPECT_FALSE(drop.isAccepted());
  EXPECT_EQ(drop.dropAction(), Qt::IgnoreAction);
  EXPECT_EQ(Shown(), loaded);
}

TEST_P(LimitedField, UndoBringsBackALoadedTextBeyondTheLimit) {
  OpenWith(300);
  Press(name, Qt::Key_A, Qt::ControlModifier);
  Type(name, "short");
  Undo(name);
  EXPECT_EQ(Shown().size(), 300);
}

TEST_F(FieldEditing, ALineEndCountsTwo) {
  exam.Question(1).options[0] = std::u16string(254, u'x');
  Open();
  Press("optionA", Qt::Key_Return, Qt::ShiftModifier);
  Press("optionA", Qt::Key_Return);
  EXPECT_EQ(Stored().options[0], u"\r\n" + std::u16string(254, u'x'));
}

TEST_F(FieldEditing, UntouchedTextsComeBackUnitByUnit) {
  const std::u16string odd = u"\uFEFF a\rb\nc\r\nd\u00A0e\0f\xD800 g\xDC00\uFDD0\uFFFC\u2028\u2029"s;
  ExamQuestion& question = exam.Question(1);
  exam.title = question.text = question.options[0] = question.answerText = question.essayAnswer = odd;
  Open();
  Press("questionText", Qt::Key_End, Qt::ControlModifier);
  Type("questionText", "X");
  Press("title", Qt::Key_Home);
  Type("title", "X");
  EXPECT_EQ(Stored().text, odd + u"X");
  EXPECT_EQ(exam.title, u"X" + odd);
  for (const auto& text : {question.options[0], question.answerText, question.essayAnswer}) {
    EXPECT_EQ(text, odd);
  }
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
  for (const char* name : {"optionA", "title"}) Paste(name);
  EXPECT_EQ(Stored().options[0], u"one\r\ntwo");
  EXPECT_EQ(exam.title.find_first_of(u"\r\n<"), std::u16string::npos);
}

}  // namespace
}  // namespace quorvantis::test
