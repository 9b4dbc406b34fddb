// SPDX-License-Identifier: MIT
#include "EditorTest.h"

namespace quorvantis::test {
namespace {

using Checks = std::array<CheckState, kOptionCount>;
constexpr auto kOff = CheckState::Off;
constexpr auto kOn = CheckState::On;
constexpr auto kGrey = CheckState::Grey;

class QuestionEditing : public EditorTest {};

TEST_F(QuestionEditing, WalksWithinTheSlots) {
  const auto check = [this](void (QuestionEditor::*step)(), int from, int to) {
    SCOPED_TRACE(testing::Message() << from << " to " << to);
    ShowQuestion(from);
    const int loadsBefore = loads;
    const auto typed = exam.Question(from).text + u"typed";
    Type(FormField::Text, typed);
    (editor.questions.*step)();
    EXPECT_EQ(editor.state.currentQuestion, to);
    EXPECT_EQ(editor.questions.Form().number, to);
    EXPECT_EQ(exam.Question(from).text == typed, from != to) << "stored exactly when the step is made";
    EXPECT_EQ(loads - loadsBefore, from == to ? 0 : 1);
  };
  check(&QuestionEditor::GoNext, 1, 2);
  check(&QuestionEditor::GoNext, 499, 500);
  check(&QuestionEditor::GoNext, 500, 500);
  check(&QuestionEditor::GoPrevious, 500, 499);
  check(&QuestionEditor::GoPrevious, 2, 1);
  check(&QuestionEditor::GoPrevious, 1, 1);
  check(&QuestionEditor::GoForward10, 495, 500);
  check(&QuestionEditor::GoForward10, 489, 499);
  check(&QuestionEditor::GoForward10, 490, 500);
  check(&QuestionEditor::GoForward10, 500, 500);
  check(&QuestionEditor::GoBack10, 12, 2);
  check(&QuestionEditor::GoBack10, 11, 1);
  check(&QuestionEditor::GoBack10, 5, 1);
  check(&QuestionEditor::GoBack10, 1, 1);
}

TEST_F(QuestionEditing, StoresAllFieldsWhateverTheKind) {
  Type(FormField::Title, u"title");
  Type(FormField::OptionA, u"first option");
  Type(FormField::OptionE, u"last option");
  Type(FormField::Answer, u"answer");
  Type(FormField::Essay, u"essay\r\n");
  editor.questions.TickAnswerBox(4, true);
  editor.questions.CycleRandomMode();
  editor.questions.SelectKind(QuestionKind::FillIn);
  EXPECT_EQ(exam.Question(1).kind, QuestionKind::Choice) << "stored only with the question";
  editor.questions.GoNext();
  EXPECT_EQ(editor.questions.Form().title, u"title");
  EXPECT_EQ(editor.questions.Form().options[0], u"");
  editor.questions.GoPrevious();
  editor.questions.SelectKind(QuestionKind::Oral);
  editor.questions.StoreCurrentQuestion();

  const ExamQuestion& question = exam.Question(1);
  EXPECT_EQ(exam.randomMode, RandomMode::Options);
  EXPECT_EQ(question.kind, QuestionKind::Oral);
  EXPECT_EQ(question.options,
            (std::array<std::u16string, 5>{u"first option", u"", u"", u"", u"last option"}));
  EXPECT_EQ(question.answerText, u"answer");
  EXPECT_EQ(question.essayAnswer, u"essay\r\n");
  EXPECT_EQ(question.answerLetters, u"e");
}

TEST_F(QuestionEditing, KeepsNumbersThatItDoesNotKnow) {
  exam.Question(1).kind = static_cast<QuestionKind>(7);
  exam.randomMode = static_cast<RandomMode>(5);
  Show();
  EXPECT_EQ(editor.questions.RandomCaption(), u"[110 %s]");
  editor.questions.GoNext();
  EXPECT_EQ(static_cast<int>(exam.Question(1).kind), 7);
  EXPECT_EQ(static_cast<int>(exam.randomMode), 5);

  exam.randomMode = RandomMode::Off;
  Show();
  for (const char16_t* caption : {u"[108 %s]", u"[109 %s]", u"[110 %s]"}) {
    editor.questions.CycleRandomMode();
    EXPECT_EQ(editor.questions.RandomCaption(), caption);
  }
}

TEST_F(QuestionEditing, CutsAnOpenSeparatorWhenStoring) {
  const auto check = [this](const char16_t* typed, const char16_t* stored) {
    Type(FormField::Answer, typed);
    editor.questions.StoreCurrentQuestion();
    EXPECT_EQ(exam.Question(1).answerText, stored) << testing::PrintToString(std::u16string(typed));
  };
  check(u"a<@>b<@>", u"a<@>b");
  check(u"a<@>  ", u"a");
  check(u"a<@>b ", u"a<@>b ");
  check(u"a <@>", u"a ");
  check(u"a<@><@>", u"a<@>");
  check(u"<@>", u"");
  check(u"a<@>\t", u"a<@>\t");
  check(u"a<@> \u3000", u"a<@> \u3000");
  check(u"  ", u"  ");
}

TEST_F(QuestionEditing, SeparatorButtonOpensOneMoreAnswer) {
  const auto check = [this](const std::u16string& before, const std::u16string& after, bool reported) {
    SCOPED_TRACE(testing::PrintToString(before));
    exam.Question(1).answerText = before;
    Show();
    editor.questions.AppendListSeparator();
    EXPECT_EQ(editor.questions.Form().answer, after);
    EXPECT_EQ(std::exchange(posted, false), reported);
    editor.state.DeliverContentChanged();
  };
  check(u"", u"", false);
  check(u"  ", u"", true);
  check(u"a", u"a<@>", true);
  check(u"a ", u"a <@>", true);
  check(u"a<@>", u"a<@>", false);
  check(u"a<@>  ", u"a<@>", true);
  check(u"a<@>b", u"a<@>b<@>", true);
  check(u"<@> ", u"<@>", true);
  const std::u16string fits(1021, u'x');
  check(fits, fits + u"<@>", true);
  check(fits + u"x", fits + u"x", true);  // refused for its length, and reported like any refused change
}

TEST_F(QuestionEditing, LongAnswerFlagStaysWithItsSlot) {
  const auto check = [this](int number, const std::u16string& answer, bool isLong) {
    ShowQuestion(number);
    Type(FormField::Answer, answer);
    editor.questions.StoreCurrentQuestion();
    EXPECT_EQ(world.longAnswerFlags.IsSet(number), isLong) << number;
  };
  const std::u16string limit(256, u'x');
  check(1, limit, false);
  check(2, limit + u"<@> ", false);
  check(3, limit + u"x", true);
  check(3, u"short again", true);
  const auto checkFlags = [this](const char* after) {
    for (int n = 1; n <= 5; ++n) EXPECT_EQ(world.longAnswerFlags.IsSet(n), n == 3) << n << " after " << after;
  };
  ShowQuestion(1);
  editor.questions.InsertHere();
  checkFlags("insert");
  editor.questions.DeleteHere();
  editor.questions.DeleteHere();
  checkFlags("delete");
  editor.files.NewExam();
  checkFlags("new");
}

TEST_F(QuestionEditing, ShowsAndStoresAnswerBoxes) {
  const auto check = [this](int mask, const Checks& shown, int stored, const char16_t* letters) {
    SCOPED_TRACE(mask);
    exam.Question(1).answerMask = mask;
    Show();
    EXPECT_EQ(editor.questions.Form().checks, shown);
    editor.questions.StoreCurrentQuestion();
    EXPECT_EQ(exam.Question(1).answerMask, stored);
    EXPECT_EQ(exam.Question(1).answerLetters, letters);
  };
  check(0, {kOff, kOff, kOff, kOff, kOff}, 0, u"");
  check(20, {kOn, kOff, kOn, kOff, kOff}, 20, u"ac");
  check(11, {kOff, kOn, kOff, kOn, kOn}, 11, u"bde");
  check(31, {kOn, kOn, kOn, kOn, kOn}, 31, u"abcde");
  check(32, {kGrey, kOff, kOff, kOff, kOff}, 16, u"a");
  check(49, {kGrey, kOff, kOff, kOff, kOn}, 17, u"ae");
  check(16 * 4000, {kGrey, kOff, kOff, kOff, kOff}, 16, u"a");
}

TEST_F(QuestionEditing, RefusesTextsOverTheLimit) {
  const auto check = [this](FormField field, std::size_t limit) {
    SCOPED_TRACE(static_cast<int>(field));
    const std::u16string full(limit, u'\u4E2D');
    EXPECT_TRUE(Type(field, full));
    posted = false;
    editor.state.DeliverContentChanged();
    EXPECT_FALSE(Type(field, full + u"x"));
    EXPECT_EQ(editor.questions.Form().Field(field), full);
    EXPECT_TRUE(posted);
  };
  check(FormField::Title, 256);
  check(FormField::Text, 4096);
  check(FormField::OptionA, 256);
  check(FormField::OptionE, 256);
  check(FormField::Answer, 1024);
  check(FormField::Essay, 4096);
}

TEST_F(QuestionEditing, CountsAsChangedWhenTheUserChangesSomething) {
  enum When { Never, Later, AtOnce };
  const auto check = [this](const char* name, When when, auto command) {
    SCOPED_TRACE(name);
    editor.files.NewExam();
    ShowQuestion(20);
    command();
    EXPECT_EQ(Modified(), when == AtOnce);
    EXPECT_EQ(title, when == AtOnce ? u"[107 UnTitle] *" : u"[107 UnTitle]");
    Turn();
    EXPECT_EQ(Modified(), when != Never);
    EXPECT_EQ(title, when == Never ? u"[107 UnTitle]" : u"[107 UnTitle] *");
    world.dialogs.answers = {SaveAnswer::No};
  };
  QuestionEditor& questions = editor.questions;
  check("typing", Later, [&] { Type(FormField::Title, u"t"); });
  check("insert", Later, [&] { questions.InsertHere(); });
  check("delete", Later, [&] { questions.DeleteHere(); });
  check("kind", AtOnce, [&] { questions.SelectKind(QuestionKind::Choice); });
  check("random", AtOnce, [&] { questions.CycleRandomMode(); });
  check("box on", AtOnce, [&] { questions.TickAnswerBox(0, true); });
  check("box off", AtOnce, [&] { questions.TickAnswerBox(0, false); });
  check("next", Never, [&] { questions.GoNext(); });
  check("previous", Never, [&] { questions.GoPrevious(); });
  check("forward", Never, [&] { questions.GoForward10(); });
  check("back", Never, [&] { questions.GoBack10(); });
  check("oral toggle", Never, [&] { editor.attachments.ToggleOral(); });
  check("new", Never, [&] { editor.files.NewExam(); });
}

TEST_F(QuestionEditing, InsertStoresFirstAndDeleteDoesNot) {
  exam.Question(2).text = u"second";
  exam.Question(500).text = u"last";
  Type(FormField::Text, u"first");
  editor.questions.InsertHere();
  EXPECT_EQ(editor.state.currentQuestion, 1);
  EXPECT_EQ(editor.questions.Form().text, u"");
  EXPECT_EQ(exam.Question(2).text, u"first");
  EXPECT_EQ(exam.Question(3).text, u"second");

  Type(FormField::Text, u"dropped");
  editor.questions.DeleteHere();
  EXPECT_EQ(editor.state.currentQuestion, 1);
  EXPECT_EQ(editor.questions.Form().text, u"first");
  EXPECT_EQ(exam.Question(1).text, u"first");
  EXPECT_EQ(exam.Question(2).text, u"second");

  ShowQuestion(500);
  Type(FormField::Text, u"new last");
  editor.questions.InsertHere();
  EXPECT_EQ(editor.questions.Form().text, u"new last");
}

TEST_F(QuestionEditing, DeleteMovesTheBoundary) {
  const auto check = [this](int boundary, int deleted, int after) {
    exam.boundaryQuestion = boundary;
    ShowQuestion(deleted);
    editor.questions.DeleteHere();
    EXPECT_EQ(exam.boundaryQuestion, after) << boundary << ", deleted " << deleted;
  };
  check(5, 4, 4);
  check(5, 5, 4);
  check(5, 6, 5);
  check(1, 1, 0);
  check(0, 1, 0);
}

}  // namespace
}  // namespace quorvantis::test
