// SPDX-License-Identifier: MIT
#include "../editor/EditorTest.h"
#include "history/History.h"
#include "history/StepName.h"
#include "platform/WholeFile.h"

#include <algorithm>
#include <functional>
#include <random>

namespace quorvantis::test {
namespace {

class HistoryTest : public EditorTest {
 protected:
  /// One command of a user, and the look after it.
  template <class Command>
  void Do(Command command) {
    history.EndTyping();
    command();
    Turn();
    history.Look();
  }

  void DoType(FormField field, const std::u16string& text) {
    Do([&] { Type(field, text); });
  }

  /// The exam file that a save would write now.
  std::string Saved() {
    const auto file = folder / "saved.exm";
    FrameSetExam copy = editor.questions.StoredExam(world.services.longAnswerFlags);
    EXPECT_TRUE(copy.WriteExamFile(file));
    return *ReadWholeFile(file, std::size_t{1} << 30);
  }

  const std::u16string& Text() const { return editor.questions.Form().text; }

  History history{editor};
};

/// Commands as a user gives them, at random.
class RandomCommands {
 public:
  RandomCommands(ExamEditor& editor, std::filesystem::path files, unsigned seed)
      : editor_(editor), files_(std::move(files)), random_(seed) {}

  void Next() {
    QuestionEditor& questions = editor_.questions;
    switch (Below(16)) {
      case 0:
        return questions.GoNext();
      case 1:
        return questions.GoPrevious();
      case 2:
        return Below(2) == 0 ? questions.GoForward10() : questions.GoBack10();
      case 3:
        return questions.InsertHere();
      case 4:
        return questions.DeleteHere();
      case 5:
        return questions.SelectKind(Below(2) == 0 ? QuestionKind::Oral : static_cast<QuestionKind>(Below(4)));
      case 6:
        return questions.CycleRandomMode();
      case 7:
        return questions.TickAnswerBox(Below(kOptionCount), Below(2) == 0);
      case 8:
        return Attach();
      case 9:
        return Remove();
      case 10:
        return editor_.attachments.ToggleOral();
      case 11:
        return SetScores();
      case 12:
        return questions.AppendListSeparator();
      default:
        questions.EditField(static_cast<FormField>(Below(9)), RandomText());
    }
  }

 private:
  std::size_t Below(std::size_t limit) { return random_() % limit; }

  std::u16string RandomText() {
    std::u16string text;
    for (std::size_t n = Below(2) == 0 ? Below(12) : Below(300); n > 0; --n)
      text.push_back(static_cast<char16_t>(u'a' + Below(20)));
    return text;
  }

  void Attach() {
    const auto file =
        WriteBytes(files_ / ("f" + std::to_string(Below(3)) + ".txt"), std::to_string(Below(100)));
    Below(2) == 0 ? editor_.attachments.AttachExamFile(file) : editor_.attachments.AttachQuestionFile(file);
  }

  void Remove() {
    AttachmentEditor& files = editor_.attachments;
    const bool ofExam = Below(2) == 0;
    const std::size_t count = (ofExam ? files.ExamList() : files.QuestionList()).names.size();
    if (count == 0) return;
    ofExam ? files.SelectExamFile(Below(count)) : files.SelectQuestionFile(Below(count));
    files.RemoveSelectedAttachment(ofExam ? AttachedTo::Exam : AttachedTo::Question);
  }

  void SetScores() {
    ExamPaper scores;
    scores.scoreMode = static_cast<ScoreMode>(Below(2));
    scores.scoreValue[Below(kScoreRanges)] = static_cast<float>(Below(9));
    editor_.changes.SetScores(scores);
  }

  ExamEditor& editor_;
  std::filesystem::path files_;
  std::mt19937 random_;
};

/// Appends a state unless nothing has changed.
void Note(std::vector<std::string>& states, std::string state) {
  if (states.empty() || states.back() != state) states.push_back(std::move(state));
}

TEST_F(HistoryTest, EveryStateComesBackInOrder) {
  for (unsigned seed = 1; seed <= 5; ++seed) {
    SCOPED_TRACE(seed);
    editor.files.StartNewExam();
    history.Begin();
    RandomCommands commands(editor, folder.Path(), seed);
    std::vector<std::string> states{Saved()};
    for (int n = 0; n < 60; ++n) {
      Do([&] { commands.Next(); });
      Note(states, Saved());
    }
    std::vector<std::string> undone{Saved()};
    while (history.Undo()) Note(undone, Saved());
    std::ranges::reverse(undone);
    EXPECT_TRUE(undone == states);
    std::mt19937 random(seed);
    for (int n = 0; n < 100; ++n) random() % 3 == 0 ? history.Undo() : history.Redo();
    while (history.Undo()) {
    }
    std::vector<std::string> redone{Saved()};
    while (history.Redo()) Note(redone, Saved());
    EXPECT_TRUE(redone == states);
  }
}

TEST_F(HistoryTest, ShowingAStepIsNoStepItself) {
  Do([&] { editor.questions.SelectKind(QuestionKind::Oral); });
  Do([&] { editor.attachments.AttachQuestionFile(WriteBytes(folder / "a.wav", "a")); });
  Do([&] { editor.attachments.ToggleOral(); });
  DoType(FormField::Title, u"one");
  DoType(FormField::Title, u"two");
  EXPECT_TRUE(history.Undo());
  EXPECT_TRUE(history.Redo());
  int undone = 0;
  while (history.Undo()) ++undone;
  EXPECT_EQ(undone, 5);
  while (history.Redo()) {
  }
  EXPECT_EQ(exam.Question(1).oralFlag, 1);
  EXPECT_EQ(editor.questions.Form().title, u"two");
}

TEST_F(HistoryTest, WalkingAndSavingAreNoSteps) {
  DoType(FormField::Text, u"first");
  Do([&] { editor.questions.GoNext(); });
  Do([&] { SaveAs(folder / "walked.exm"); });
  Do([&] { editor.questions.GoForward10(); });
  EXPECT_TRUE(history.Undo());
  EXPECT_EQ(editor.state.CurrentQuestion(), 1);
  EXPECT_EQ(Text(), u"");
  EXPECT_TRUE(Modified());
  EXPECT_FALSE(history.Undo());
  EXPECT_TRUE(history.Redo());
  EXPECT_EQ(Text(), u"first");
  EXPECT_EQ(editor.state.FileName(), folder / "walked.exm");
}

TEST_F(HistoryTest, TypingIsOneStepUntilAPauseALineEndOrAnotherField) {
  History::Clock::time_point now{};
  const auto type = [&](FormField field, const std::u16string& text, std::chrono::milliseconds pause) {
    Type(field, text);
    now += pause;
    history.Look(now);
  };
  using std::chrono::milliseconds;
  type(FormField::Text, u"a", milliseconds(0));
  type(FormField::Text, u"ab", milliseconds(900));
  type(FormField::Text, u"abc", milliseconds(900));
  type(FormField::Text, u"abc d", milliseconds(1100));
  type(FormField::Text, u"abc d\r\n", milliseconds(10));
  type(FormField::Text, u"abc d\r\ne", milliseconds(10));
  type(FormField::OptionA, u"x", milliseconds(10));
  type(FormField::Text, u"abc d\r\ne2", milliseconds(10));
  std::vector<std::u16string> texts;
  while (const auto spot = history.Undo()) {
    texts.push_back(Text());
    EXPECT_TRUE(spot->field);
    if (*spot->field == FormField::Text) {
      EXPECT_EQ(spot->position, Text().size());
    }
  }
  EXPECT_EQ(texts, (std::vector<std::u16string>{u"abc d\r\ne", u"abc d\r\ne", u"abc d\r\n", u"abc", u""}));
}

TEST_F(HistoryTest, StepsAreNamedAfterWhatTheyDo) {
  const auto file = WriteBytes(folder / "a.txt", "a");
  const struct {
    std::function<void()> command;
    ChangeKind kind;
    int question;
  } rows[] = {
      {[&] { Type(FormField::Title, u"t"); }, ChangeKind::Title, 0},
      {[&] { Type(FormField::OptionC, u"c"); }, ChangeKind::OptionText, 1},
      {[&] { Type(FormField::Essay, u"e"); }, ChangeKind::EssayAnswer, 1},
      {[&] { editor.questions.TickAnswerBox(2, true); }, ChangeKind::AnswerBox, 1},
      {[&] { editor.questions.CycleRandomMode(); }, ChangeKind::RandomMode, 0},
      {[&] { editor.attachments.AttachExamFile(file); }, ChangeKind::AttachToExam, 0},
      {[&] { editor.attachments.AttachQuestionFile(file); }, ChangeKind::Attach, 1},
      {[&] { editor.questions.SelectKind(QuestionKind::Oral); }, ChangeKind::Kind, 1},
      {[&] { editor.attachments.ToggleOral(); }, ChangeKind::Oral, 1},
      {[&] {
         editor.attachments.SelectQuestionFile(0);
         editor.attachments.RemoveSelectedAttachment(AttachedTo::Question);
       },
       ChangeKind::RemoveFile, 1},
      {[&] { editor.questions.InsertHere(); }, ChangeKind::InsertQuestion, 1},
      {[&] { editor.questions.DeleteHere(); }, ChangeKind::DeleteQuestion, 1},
  };
  for (const auto& row : rows) {
    Do(row.command);
    ASSERT_TRUE(history.NextUndo());
    EXPECT_EQ(history.NextUndo()->kind, row.kind);
    EXPECT_EQ(history.NextUndo()->question, row.question) << static_cast<int>(row.kind);
  }
}

TEST_F(HistoryTest, FilesThatAStepHasDeletedOrReplacedComeBack) {
  Do([&] { editor.attachments.AttachQuestionFile(WriteBytes(folder / "a.txt", "old")); });
  const std::filesystem::path copy = editor.state.Current().attachmentPaths[0];
  Do([&] {
    editor.state.NameChange({ChangeKind::Import});
    editor.files.StartNewExam();
    editor.attachments.AttachQuestionFile(WriteBytes(folder / "b.txt", "b"));
    ExamQuestion question = editor.state.Current();
    question.attachmentPaths[0] = copy.u16string();
    std::filesystem::remove(copy);
    WriteBytes(copy, "new");
    editor.changes.SetQuestion(1, question);
    editor.questions.LoadCurrentQuestion();
  });
  EXPECT_TRUE(history.Undo());
  EXPECT_EQ(ReadWholeFile(copy, 100), "old");
  std::filesystem::remove(copy);
  EXPECT_TRUE(history.Redo());
  EXPECT_EQ(ReadWholeFile(copy, 100), "new");
  EXPECT_TRUE(history.Undo());
  EXPECT_EQ(ReadWholeFile(copy, 100), "old");
}

TEST_F(HistoryTest, TheOldestStepsGoFirst) {
  History small(editor, 20000);
  for (int n = 0; n < 100; ++n) {
    small.EndTyping();
    Type(FormField::Text, std::u16string(static_cast<std::size_t>(n + 1), u'x'));
    small.Look();
  }
  EXPECT_TRUE(small.HasForgotten());
  EXPECT_LE(small.Size(), 20000U);
  int undone = 0;
  while (small.Undo()) ++undone;
  EXPECT_GT(undone, 5);
  EXPECT_EQ(Text().size(), 100U - static_cast<std::size_t>(undone));
}

TEST_F(HistoryTest, AStepKnowsItsPlaceAmongEqualLetters) {
  struct Row {
    const char* what;
    std::u16string before;
    std::vector<std::pair<std::u16string, std::size_t>> edits;  ///< the text and the cursor after each
    std::size_t undo, redo;
  };
  const Row rows[] = {{"typed at the front", u"aaaa", {{u"aaaaa", 1}}, 0, 1},
                      {"typed in the middle", u"aaaa", {{u"aaaaa", 3}}, 2, 3},
                      {"typed at the end", u"aaaa", {{u"aaaaa", 5}}, 4, 5},
                      {"typed on", u"aaaa", {{u"aaaaa", 2}, {u"aaaaaa", 3}}, 1, 3},
                      {"typed on after a word", u"ab ab", {{u"ab aab", 4}, {u"ab abab", 5}}, 3, 5},
                      {"typed and deleted", u"aaaa", {{u"aaaaa", 2}, {u"aaaaaa", 3}, {u"aaaaa", 2}}, 1, 2},
                      {"deleted in the middle", u"aaaa", {{u"aaa", 1}}, 2, 1},
                      {"a word pasted before the same", u"no no", {{u"no no no", 3}}, 0, 3},
                      {"pasted over a selection that ends alike", u"one cat", {{u"one bat", 7}}, 7, 7},
                      {"no letter is new there", u"abc", {{u"abxc", 1}}, 2, 3},
                      {"a cursor beyond the text", u"abc", {{u"abcd", 99}}, 3, 4}};
  const auto now = History::Clock::now();
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    DoType(FormField::Text, u"");
    DoType(FormField::Text, row.before);
    history.EndTyping();
    for (const auto& [text, cursor] : row.edits) {
      Type(FormField::Text, text);
      editor.questions.NoteCursor({FormField::Text, cursor});
      history.Look(now);
    }
    EXPECT_EQ(history.Undo()->position, row.undo);
    EXPECT_EQ(Text(), row.before);
    EXPECT_EQ(history.Redo()->position, row.redo);
    EXPECT_EQ(Text(), row.edits.back().first);
  }
}

TEST_F(HistoryTest, QuestionsThatOnlyMoveCostNothing) {
  for (int n = 1; n <= kMaxQuestions; ++n)
    exam.Question(n).text.assign(1000, static_cast<char16_t>(n % 26 + 'a'));
  Show();
  history.Begin();
  std::mt19937 random(1);
  for (int n = 0; n < 60; ++n) {
    Do([&] { ShowQuestion(static_cast<int>(random() % 30) + 1); });
    DoType(FormField::Text, Text() + u"x");
    Do([&] { n % 2 == 0 ? editor.questions.InsertHere() : editor.questions.DeleteHere(); });
  }
  EXPECT_LT(history.Size(), 60U * 8000);
}

}  // namespace
}  // namespace quorvantis::test
