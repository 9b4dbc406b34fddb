// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"

#include <QLabel>
#include <QTextDocument>

namespace quorvantis::test {
namespace {

class QuestionWindow : public WindowTest {
 protected:
  QString Number() { return Control<QLabel>("questionNumber").text(); }
  QString Text() { return Lines("questionText").toPlainText(); }

  /// Attaches a new file through a button.
  void Attach(const char* button, const char* file) {
    world.dialogs.filesToOpen.push_back(MakeFile(file));
    Click(button);
  }
};

TEST_F(QuestionWindow, ButtonsMoveAndShowQuestions) {
  exam.Question(1).text = u"first";
  exam.Question(2).kind = static_cast<QuestionKind>(7);
  Open();
  Click("next");
  for (const char* name : {"kindChoice", "kindFillIn", "kindEssay", "kindOral"}) {
    EXPECT_FALSE(Control<QAbstractButton>(name).isChecked());
  }
  for (const char* button : {"forward10", "back10", "previous"}) Click(button);
  Turn();
  EXPECT_EQ(Number(), "1");
  EXPECT_FALSE(ShowsChange());
  Click("insertQuestion");
  EXPECT_EQ(Text(), "");
  EXPECT_FALSE(ShowsChange());
  Turn();
  EXPECT_TRUE(ShowsChange());
  Click("deleteQuestion");
  EXPECT_EQ(Text(), "first");
  for (const char* button : {"random", "boxA", "boxC", "boxE", "boxE", "kindOral", "next"}) Click(button);
  EXPECT_EQ(Control<StateBox>("random").text(), "[108 %s]");
  EXPECT_EQ(Control<StateBox>("boxA").checkState(), Qt::Unchecked);
  EXPECT_EQ(exam.Question(1).answerLetters, u"ac");
  EXPECT_EQ(exam.Question(1).kind, QuestionKind::Oral);
}

TEST_F(QuestionWindow, TheFocusNeverStaysInAFieldThatIsGone) {
  exam.Question(2).kind = QuestionKind::Essay;
  Open();
  for (const char* field : {"optionC", "essay"}) {
    Press(field, Qt::Key_PageDown);
    EXPECT_TRUE(Lines("questionText").hasFocus());
  }
}

TEST_F(QuestionWindow, SeparatorButtonPreparesTheNextAnswer) {
  exam.Question(1).kind = QuestionKind::FillIn;
  Open();
  Click("listSeparator");
  Type("answer", "red");
  Click("listSeparator");
  EXPECT_EQ(Line("answer").text(), "red<@>");
  EXPECT_TRUE(Line("answer").hasFocus());
  Press("answer", Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Line("answer").text(), "red");
}

TEST_F(QuestionWindow, DeleteKeyRemovesTheSelectedFile) {
  Open();
  for (const char* file : {"one.jpg", "two.jpg"}) Attach("attachToQuestion", file);

  auto& list = Control<AttachmentListBox>("questionAttachments");
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(0)).center());
  Press("questionAttachments", Qt::Key_Delete);
  EXPECT_EQ(list.count(), 1);
  EXPECT_EQ(exam.Question(1).attachmentNames[0], u"two.jpg");
  Press("questionAttachments", Qt::Key_Delete);
  EXPECT_EQ(list.count(), 1) << "none is selected any more";
  EXPECT_TRUE(list.item(0)->icon().isNull());
  world.dialogs.filesToOpen.push_back(folder / "gone");
  Click("attachToQuestion");
  EXPECT_FALSE(list.item(1)->icon().isNull()) << "a file without a copy is marked";
}

}  // namespace
}  // namespace quorvantis::test
