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
  Qt::CheckState Box(const char* name) { return Control<StateBox>(name).checkState(); }
  bool Shows(const char* name) { return Control(name).isVisible(); }

  /// Attaches a new file through a button.
  void Attach(const char* button, const char* file) {
    world.dialogs.filesToOpen.push_back(MakeFile(file));
    Click(button);
  }
};

TEST_F(QuestionWindow, WalkingStoresAndLoadsAndMarksNothing) {
  exam.Question(1).text = u"first";
  exam.Question(2).text = u"second";
  Open();
  Click("next");
  EXPECT_EQ(Number(), "2");
  EXPECT_EQ(Text(), "second");
  for (const char* button : {"forward10", "back10", "previous"}) Click(button);
  Turn();
  EXPECT_EQ(Number(), "1");
  EXPECT_FALSE(ShowsChange());

  Type("questionText", "the ");
  Click("next");
  EXPECT_EQ(exam.Question(1).text, u"the first");
}

TEST_F(QuestionWindow, PageKeysWalkFromAnyField) {
  Open();
  Press("questionText", Qt::Key_PageDown);
  Press("title", Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Number(), "12");
  Press("optionA", Qt::Key_PageUp);
  Press("questionText", Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(Number(), "1");
}

TEST_F(QuestionWindow, TheFocusNeverStaysInAFieldThatIsGone) {
  exam.Question(2).kind = QuestionKind::Essay;
  Open();
  for (const char* field : {"optionC", "essay"}) {
    Press(field, Qt::Key_PageDown);
    EXPECT_TRUE(Lines("questionText").hasFocus());
  }
}

TEST_F(QuestionWindow, ShowsOnlyWhatFitsTheKind) {
  Open();
  const auto check = [this](const char* button, bool choice, bool fillIn, bool essay) {
    SCOPED_TRACE(button);
    Click(button);
    for (const char* name : {"boxA", "boxE", "optionA", "optionE"}) EXPECT_EQ(Shows(name), choice);
    for (const char* name : {"answer", "answerLabel", "listSeparator"}) EXPECT_EQ(Shows(name), fillIn);
    for (const char* name : {"essay", "essayLabel"}) EXPECT_EQ(Shows(name), essay);
    EXPECT_TRUE(ShowsChange());
  };
  check("kindFillIn", false, true, false);
  check("kindOral", false, false, false);
  check("kindChoice", true, false, false);
  check("kindEssay", false, false, true);
  Click("next");
  EXPECT_EQ(exam.Question(1).kind, QuestionKind::Essay);
}

TEST_F(QuestionWindow, AnUnknownKindHasNoButtonAndIsKept) {
  exam.Question(2).kind = static_cast<QuestionKind>(7);
  Open();
  Click("next");
  for (const char* name : {"kindChoice", "kindFillIn", "kindEssay", "kindOral"}) {
    EXPECT_FALSE(Control<QAbstractButton>(name).isChecked());
  }
  EXPECT_FALSE(Shows("optionA") || Shows("answer") || Shows("essay"));
  Click("next");
  EXPECT_EQ(exam.Question(2).kind, static_cast<QuestionKind>(7));
}

TEST_F(QuestionWindow, BoxesGiveTheAnswerAndMarkAtOnce) {
  Open();
  Click("boxA");
  EXPECT_TRUE(ShowsChange());
  for (const char* box : {"boxC", "boxE", "boxE"}) Click(box);
  Click("next");
  EXPECT_EQ(Box("boxA"), Qt::Unchecked);
  EXPECT_EQ(exam.Question(1).answerLetters, u"ac");
  EXPECT_EQ(exam.Question(1).answerMask, 20);
}

TEST_F(QuestionWindow, AClickOnAGreyBoxTurnsItOff) {
  exam.Question(1).answerMask = 32;
  Open();
  for (const auto state : {Qt::PartiallyChecked, Qt::Unchecked, Qt::Checked}) {
    EXPECT_EQ(Box("boxA"), state);
    Click("boxA");
  }
}

TEST_F(QuestionWindow, RandomBoxGoesRoundWithItsCaption) {
  Open();
  const auto check = [this](Qt::CheckState state, const char* caption) {
    EXPECT_EQ(Box("random"), state);
    EXPECT_EQ(Control<StateBox>("random").text(), caption);
    Click("random");
  };
  check(Qt::Unchecked, "[110 %s]");
  check(Qt::Checked, "[108 %s]");
  check(Qt::PartiallyChecked, "[109 %s]");
  check(Qt::Unchecked, "[110 %s]");
  EXPECT_TRUE(ShowsChange());
  Click("next");
  EXPECT_EQ(exam.randomMode, RandomMode::Options);
}

TEST_F(QuestionWindow, InsertAndDeleteMoveQuestionsAndMarkAfterTheEvent) {
  exam.Question(1).text = u"first";
  Open();
  Click("insertQuestion");
  EXPECT_EQ(Text(), "");
  EXPECT_FALSE(ShowsChange());
  Turn();
  EXPECT_TRUE(ShowsChange());
  Type("questionText", "dropped");
  Click("deleteQuestion");
  EXPECT_EQ(Text(), "first");
}

TEST_F(QuestionWindow, SeparatorButtonPreparesTheNextAnswer) {
  exam.Question(1).kind = QuestionKind::FillIn;
  Open();
  Click("listSeparator");
  EXPECT_EQ(Line("answer").text(), "");
  Type("answer", "red");
  Click("listSeparator");
  Click("listSeparator");
  EXPECT_EQ(Line("answer").text(), "red<@>");
  EXPECT_TRUE(Line("answer").hasFocus());
  Press("answer", Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Line("answer").text(), "red");
}

TEST_F(QuestionWindow, DeleteKeyRemovesTheSelectedFile) {
  Open();
  EXPECT_FALSE(Shows("examAttachments") || Shows("examAttachmentsLabel") || Shows("questionAttachments"));
  Attach("attachFiles", "exam.doc");
  for (const char* file : {"one.jpg", "two.jpg"}) Attach("attachToQuestion", file);
  EXPECT_TRUE(Shows("examAttachments") && Shows("examAttachmentsLabel"));

  auto& list = Control<AttachmentListBox>("questionAttachments");
  Press("questionAttachments", Qt::Key_Delete);
  EXPECT_EQ(list.count(), 2);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(0)).center());
  Press("questionAttachments", Qt::Key_Delete);
  EXPECT_EQ(list.count(), 1);
  EXPECT_EQ(exam.Question(1).attachmentNames[0], u"two.jpg");
  Press("questionAttachments", Qt::Key_Delete);
  EXPECT_EQ(list.count(), 1) << "none is selected any more";
}

TEST_F(QuestionWindow, OralToggleSwitchesTheFlag) {
  exam.Question(1).kind = QuestionKind::Oral;
  Open();
  Attach("attachToQuestion", "one.avi");
  EXPECT_FALSE(Shows("oralToggle"));
  Control<AttachmentListBox>("questionAttachments").setCurrentRow(0);
  Attach("attachToQuestion", "two.avi");
  EXPECT_EQ(Control<QAbstractButton>("oralToggle").text(), "[172 %s]");
  Click("oralToggle");
  EXPECT_EQ(Control<QAbstractButton>("oralToggle").text(), "[173 %s]");
  EXPECT_EQ(exam.Question(1).oralFlag, 1);
}

}  // namespace
}  // namespace quorvantis::test
