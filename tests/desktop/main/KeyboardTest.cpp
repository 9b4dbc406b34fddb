// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"

#include <QAccessible>
#include <QLabel>
#include <QRadioButton>
#include <QShortcut>

namespace quorvantis::test {
namespace {

class Keyboard : public WindowTest {
 protected:
  void OpenWithLists(QuestionKind kind) {
    exam.examAttachmentNames[0] = exam.Question(1).attachmentNames[0] = u"file.jpg";
    exam.Question(1).kind = kind;
    Open();
  }
  QString Number() { return Control<QLabel>("questionNumber").text(); }

  void ExpectNames(QAccessibleInterface* part) {
    if (part->state().focusable && !part->state().invisible) {
      EXPECT_FALSE(part->text(QAccessible::Name).trimmed().isEmpty())
          << part->object()->metaObject()->className() << " " << qPrintable(part->object()->objectName());
      ++named;
    }
    for (int i = 0; i < part->childCount(); ++i) ExpectNames(part->child(i));
  }

  int named = 0;
};

TEST_F(Keyboard, ScreenReadersFindANameForEveryControl) {
  for (const auto kind :
       {QuestionKind::Choice, QuestionKind::FillIn, QuestionKind::Essay, QuestionKind::Oral}) {
    OpenWithLists(kind);
    ExpectNames(QAccessible::queryAccessibleInterface(window.get()));
  }
  EXPECT_GT(named, 4 * 20);
}

TEST_F(Keyboard, TabReachesEveryControlFromTopToBottom) {
  for (const auto kind :
       {QuestionKind::Choice, QuestionKind::FillIn, QuestionKind::Essay, QuestionKind::Oral}) {
    OpenWithLists(kind);
    Control("new").setFocus();
    QWidgetList reached;
    while (!reached.contains(QApplication::focusWidget())) {
      reached << QApplication::focusWidget();
      QTest::keyClick(reached.back(), Qt::Key_Tab);
    }
    for (auto* control : Area().findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      const bool otherKind = dynamic_cast<QRadioButton*>(control) != nullptr &&
                             !static_cast<QRadioButton*>(control)->isChecked();
      if (!control->isVisible() || control->focusPolicy() == Qt::NoFocus || otherKind) continue;
      EXPECT_TRUE(reached.contains(control)) << qPrintable(control->objectName());
    }
    for (const auto& [first, second] :
         {std::pair{"new", "title"}, {"title", "back10"}, {"back10", "questionText"}}) {
      EXPECT_LT(reached.indexOf(&Control(first)), reached.indexOf(&Control(second)));
    }
  }
}

TEST_F(Keyboard, PageKeysScrollAFieldThatHoldsMoreThanItShows) {
  exam.Question(1).text = std::u16string(100, u'\n');
  Open();
  for (int i = 0; i < 40; ++i) Press("questionText", Qt::Key_PageDown);
  EXPECT_EQ(Number(), "1");
  EXPECT_GT(Lines("questionText").textCursor().blockNumber(), 90);
  Press("questionText", Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Number(), "11");
}

}  // namespace
}  // namespace quorvantis::test
