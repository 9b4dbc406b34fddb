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
  using Step = void (QuestionEditor::*)();
  constexpr Step kNext = &QuestionEditor::GoNext, kPrevious = &QuestionEditor::GoPrevious;
  constexpr Step kForward = &QuestionEditor::GoForward10, kBack = &QuestionEditor::GoBack10;
  const std::tuple<Step, int, int> rows[] = {{kNext, 1, 2},        {kNext, 500, 500},    {kPrevious, 2, 1},
                                             {kPrevious, 1, 1},    {kForward, 489, 499}, {kForward, 495, 500},
                                             {kForward, 500, 500}, {kBack, 12, 2},       {kBack, 5, 1}};
  for (const auto& [step, from, to] : rows) {
    SCOPED_TRACE(testing::Message() << from << " to " << to);
    ShowQuestion(from);
    const int loadsBefore = loads;
    const auto typed = exam.Question(from).text + u"typed";
    Type(FormField::Text, typed);
    (editor.questions.*step)();
    EXPECT_EQ(editor.questions.Form().number, to);
    EXPECT_EQ(exam.Question(from).text == typed, from != to) << "stored exactly when the step is made";
    EXPECT_EQ(loads - loadsBefore, from == to ? 0 : 1);
  }
}

TEST_F(QuestionEditing, StoresAllFieldsWhateverTheKind) {
  const std::array<std::u16string, 5> options{u"first", u"", u"", u"", u"last"};
  Type(FormField::Title, u"title");
  Type(FormField::OptionA, options[0]);
  Type(FormField::OptionE, options[4]);
  Type(FormField::Answer, u"answer");
  Type(FormField::Essay, u"essay\r\n");
  editor.questions.SelectKind(QuestionKind::Oral);
  EXPECT_EQ(exam.Question(1).kind, QuestionKind::Choice) << "stored only with the question";
  editor.questions.GoNext();
  EXPECT_EQ(editor.questions.Form().title, u"title");
  EXPECT_EQ(editor.questions.Form().options[0], u"");
  const ExamQuestion& question = exam.Question(1);
  EXPECT_EQ(question.kind, QuestionKind::Oral);
  EXPECT_EQ(question.options, options);
  EXPECT_EQ(question.answerText, u"answer");
  EXPECT_EQ(question.essayAnswer, u"essay\r\n");
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
  const std::pair<std::u16string, std::u16string> rows[] = {
      {u"a<@>b<@>", u"a<@>b"}, {u"a<@>  ", u"a"}, {u"a<@>b ", u"a<@>b "}, {u"a <@>", u"a "},
      {u"a<@><@>", u"a<@>"},   {u"<@>", u""},     {u"a<@>\t", u"a<@>\t"}, {u"  ", u"  "}};
  for (const auto& [typed, stored] : rows) {
    Type(FormField::Answer, typed);
    editor.questions.StoreCurrentQuestion();
    EXPECT_EQ(exam.Question(1).answerText, stored) << testing::PrintToString(typed);
  }
}

TEST_F(QuestionEditing, SeparatorButtonOpensOneMoreAnswer) {
  const std::u16string fits(1021, u'x');
  const std::tuple<std::u16string, std::u16string, bool> rows[] = {
      {u"", u"", false},
      {u"  ", u"", true},
      {u"a ", u"a <@>", true},
      {u"a<@>", u"a<@>", false},
      {u"a<@>  ", u"a<@>", true},
      {u"a<@>b", u"a<@>b<@>", true},
      {fits, fits + u"<@>", true},
      {fits + u"x", fits + u"x", true}};  // too long: refused, and reported like any refused change
  for (const auto& [before, after, reported] : rows) {
    SCOPED_TRACE(testing::PrintToString(before));
    exam.Question(1).answerText = before;
    Show();
    editor.questions.AppendListSeparator();
    EXPECT_EQ(editor.questions.Form().answer, after);
    EXPECT_EQ(std::exchange(posted, false), reported);
    editor.state.DeliverContentChanged();
  }
}

TEST_F(QuestionEditing, LongAnswerFlagStaysWithItsSlot) {
  const std::u16string limit(256, u'x');
  const std::pair<std::u16string, bool> rows[] = {
      {limit, false}, {limit + u"<@> ", false}, {limit + u"x", true}, {u"short again", true}};
  ShowQuestion(3);
  for (const auto& [answer, isLong] : rows) {
    Type(FormField::Answer, answer);
    editor.questions.StoreCurrentQuestion();
    EXPECT_EQ(world.longAnswerFlags.IsSet(3), isLong) << answer.size();
  }
  ShowQuestion(1);
  editor.questions.InsertHere();
  editor.questions.DeleteHere();
  editor.questions.DeleteHere();
  editor.files.NewExam();
  EXPECT_TRUE(world.longAnswerFlags.IsSet(3) && !world.longAnswerFlags.IsSet(2));
}

TEST_F(QuestionEditing, ShowsAndStoresAnswerBoxes) {
  const std::tuple<int, Checks, int, std::u16string> rows[] = {
      {0, {kOff, kOff, kOff, kOff, kOff}, 0, u""},
      {11, {kOff, kOn, kOff, kOn, kOn}, 11, u"bde"},
      {49, {kGrey, kOff, kOff, kOff, kOn}, 17, u"ae"},
      {16 * 4000, {kGrey, kOff, kOff, kOff, kOff}, 16, u"a"}};
  for (const auto& [mask, shown, stored, letters] : rows) {
    exam.Question(1).answerMask = mask;
    Show();
    EXPECT_EQ(editor.questions.Form().checks, shown) << mask;
    editor.questions.StoreCurrentQuestion();
    EXPECT_EQ(exam.Question(1).answerMask, stored);
    EXPECT_EQ(exam.Question(1).answerLetters, letters);
  }
}

TEST_F(QuestionEditing, RefusesTextsOverTheLimit) {
  const std::pair<FormField, std::size_t> rows[] = {{FormField::Title, 256},   {FormField::Text, 4096},
                                                    {FormField::OptionA, 256}, {FormField::OptionE, 256},
                                                    {FormField::Answer, 1024}, {FormField::Essay, 4096}};
  for (const auto& [field, limit] : rows) {
    const std::u16string full(limit, u'\u4E2D');
    EXPECT_TRUE(Type(field, full));
    posted = false;
    editor.state.DeliverContentChanged();
    EXPECT_FALSE(Type(field, full + u"x"));
    EXPECT_EQ(editor.questions.Form().Field(field), full);
    EXPECT_TRUE(posted);
  }
}

TEST_F(QuestionEditing, CountsAsChangedWhenTheUserChangesSomething) {
  enum When { Never, Later, AtOnce };
  const auto check = [this](const char* name, When when, auto command) {
    SCOPED_TRACE(name);
    editor.files.NewExam();
    ShowQuestion(20);
    command();
    EXPECT_EQ(Modified(), when == AtOnce);
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
  check("box on", AtOnce, [&] { questions.TickAnswerBox(0, true); });
  check("next", Never, [&] { questions.GoNext(); });
  check("oral toggle", Never, [&] { editor.attachments.ToggleOral(); });
}

TEST_F(QuestionEditing, InsertStoresFirstAndDeleteDoesNot) {
  exam.Question(2).text = u"second";
  Type(FormField::Text, u"first");
  editor.questions.InsertHere();
  EXPECT_EQ(editor.questions.Form().text, u"");
  EXPECT_EQ(exam.Question(2).text, u"first");
  EXPECT_EQ(exam.Question(3).text, u"second");
  Type(FormField::Text, u"dropped");
  editor.questions.DeleteHere();
  EXPECT_EQ(editor.questions.Form().text, u"first");
  EXPECT_EQ(exam.Question(2).text, u"second");
}

TEST_F(QuestionEditing, DeleteMovesTheBoundary) {
  const std::array<int, 3> rows[] = {{5, 4, 4}, {5, 5, 4}, {5, 6, 5}, {1, 1, 0}, {0, 1, 0}};
  for (const auto& [boundary, deleted, after] : rows) {
    exam.boundaryQuestion = boundary;
    ShowQuestion(deleted);
    editor.questions.DeleteHere();
    EXPECT_EQ(exam.boundaryQuestion, after) << boundary << ", deleted " << deleted;
  }
}

}  // namespace
}  // namespace quorvantis::test
