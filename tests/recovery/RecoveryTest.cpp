// SPDX-License-Identifier: MIT
#include "RecoveryTest.h"

#include "editor/WorkCopies.h"
#include "examfile/WorkFolder.h"

#include <ctime>
#include <functional>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

TEST_F(RecoveryTest, BringsBackWhatAnExamFileWouldLose) {
  const std::u16string odd = std::u16string(u"\xD800|\0|\r|\n", 7) + u"\u4E2D";
  Type(FormField::Title, u"title");
  Type(FormField::Answer, std::u16string(1000, u'a'));
  Type(FormField::OptionE, u"an option of a fill-in question");
  editor.questions.SelectKind(QuestionKind::FillIn);
  editor.questions.CycleRandomMode();
  editor.questions.GoNext();
  exam.Question(7).text = std::u16string(5000, u'x');
  exam.Question(8).kind = static_cast<QuestionKind>(77777);
  exam.Question(8).answerMask = 99;
  exam.scoreMode = ScoreMode::Custom;
  exam.scoreTo[3] = -12345;
  exam.scoreValue[9] = 1.0F / 3;
  exam.boundaryQuestion = 123456;
  ShowQuestion(500);
  editor.questions.TickAnswerBox(2, true);
  Type(FormField::Essay, odd);
  keeper.LookAndWait();
  EXPECT_EQ(exam.Question(500).essayAnswer, u"") << "the form is not stored";

  const auto copies = Copies();
  ASSERT_EQ(copies.size(), 1u);
  EXPECT_EQ(copies[0].title, u"title");
  EXPECT_EQ(copies[0].fileName, "UnTitle");
  EXPECT_EQ(copies[0].questions, 7);
  EXPECT_NEAR(static_cast<double>(copies[0].time), static_cast<double>(std::time(nullptr)), 60);

  const auto run = Restart();
  EXPECT_EQ(TakeSnapshot(run->editor).content, TakeSnapshot(editor).content);
  EXPECT_EQ(run->editor.state.CurrentQuestion(), 500);
  EXPECT_EQ(run->editor.questions.Form().essay, odd);
  EXPECT_TRUE(run->editor.state.Modified());
  EXPECT_TRUE(run->world.longAnswerFlags.IsSet(1)) << "or saving would cut the answer";
}

TEST_F(RecoveryTest, BringsBackAttachedFiles) {
  SaveAs(folder / "named.exm");
  const fs::path map = Attach("map.png", "the map", true);
  const fs::path note = Attach("a/note.txt", "the first note");
  editor.questions.GoNext();
  Attach("b/note.txt", "the second note");
  editor.questions.GoPrevious();
  keeper.LookAndWait();
  const auto links = [&] { return fs::hard_link_count(map) + 10 * fs::hard_link_count(note); };
  EXPECT_EQ(links(), 22u) << "nothing is copied";
  editor.attachments.SelectExamFile(0);
  editor.attachments.RemoveSelectedAttachment(AttachedTo::Exam);
  keeper.LookAndWait();
  EXPECT_EQ(links(), 21u) << "links that no copy needs go";
  fs::remove_all(AttachmentWorkRoot(world.services.applicationFolder));
  Type(FormField::Text, u"and on");
  keeper.LookAndWait();

  const auto run = Restart();
  EXPECT_EQ(run->editor.state.FileName(), folder / "named.exm");
  EXPECT_EQ(run->exam.examAttachmentNames[0], u"");
  const std::pair<int, const char*> rows[] = {{1, "the first note"}, {2, "the second note"}};
  for (const auto& [question, content] : rows) {
    EXPECT_EQ(run->exam.Question(question).attachmentNames[0], u"note.txt");
    const fs::path copy = run->exam.Question(question).attachmentPaths[0];
    EXPECT_EQ(ReadBytes(copy), content);
    EXPECT_EQ(copy.parent_path(), WorkFolder(run->exam, world.services.applicationFolder));
  }
  run->keeper.LookAndWait();
  run->editor.files.SaveExam();
  EXPECT_TRUE(Copies().empty());
  EXPECT_EQ(fs::hard_link_count(run->exam.Question(1).attachmentPaths[0]), 1u);
  EXPECT_FALSE(fs::exists(RecoveryRoot(world.services.applicationFolder)));
}

TEST_F(RecoveryTest, ACopyOfNothingIsNotOffered) {
  const std::pair<bool, std::function<void()>> rows[] = {
      {false, [&] { editor.questions.CycleRandomMode(); }},
      {false, [&] { editor.questions.SelectKind(QuestionKind::Oral); }},
      {true, [&] { Type(FormField::Title, u"t"); }},
      {true, [&] { Type(FormField::Essay, u"e"); }},
      {true, [&] { Attach("map.png", "the map", true); }},
      {true, [&] { Attach("note.txt", ""); }}};
  for (const auto& [isOffered, change] : rows) {
    editor.files.StartNewExam();
    change();
    keeper.Left(Parting::Leave);
    EXPECT_EQ(Copies().size(), isOffered ? 1u : 0u);
    EXPECT_EQ(fs::exists(RecoveryRoot(world.services.applicationFolder)), isOffered);
    fs::remove_all(RecoveryRoot(world.services.applicationFolder));
    keeper.Entered();
  }
}

TEST_F(RecoveryTest, NeverTakesAPathFromACopy) {
  const fs::path secret = WriteBytes(folder / "secret", "not the exam's");
  exam.Question(1).attachmentPaths[0] = AsText(secret);
  exam.Question(1).attachmentNames[0] = u"x";
  exam.examAttachmentPaths[0] = AsText(secret);  // a display name that got among the paths
  exam.examAttachmentNames[0] = u"y";
  exam.displayNamesAmongPaths = {AsText(secret)};
  keeper.LookAndWait();
  const fs::path link = RecoveryLinkPath(Copies()[0].folder, 1);
  ASSERT_TRUE(fs::remove(link));
  fs::create_symlink(secret, link);
  Run run(world.services.applicationFolder);
  EXPECT_EQ(RestoreExam(Copies()[0].folder, run.editor), std::vector<std::u16string>{u"x"});
  EXPECT_EQ(ReadBytes(run.exam.Question(1).attachmentPaths[0]), "");
  EXPECT_EQ(run.exam.displayNamesAmongPaths, exam.displayNamesAmongPaths);
  EXPECT_EQ(run.exam.examAttachmentPaths[0], AsText(secret));
  EXPECT_NE(FindSavingLosses(run.exam, run.world.longAnswerFlags)[0].what.find(u'y'), std::u16string::npos);
  run.editor.files.StartNewExam();
  EXPECT_EQ(ReadBytes(secret), "not the exam's") << "it is no work copy";
}

TEST_F(RecoveryTest, ThereIsACopyWhileTheExamDiffersFromItsFile) {
  struct Row {
    const char* name;
    bool differs;
    std::function<void()> change;
  };
  QuestionEditor& questions = editor.questions;
  const auto preview = [&] {
    questions.StoreCurrentQuestion(), exam.CountQuestions(), exam.PrefixAttachmentPaths(1);
  };
  const auto typeAndTakeBack = [&] {
    Type(FormField::Text, u"x");
    keeper.LookAndWait();
    Type(FormField::Text, u"first");
  };
  const auto remove = [&] {
    editor.attachments.SelectQuestionFile(0);
    editor.attachments.RemoveSelectedAttachment(AttachedTo::Question);
  };
  const Row rows[] = {
      {"nothing", false, [] {}},
      {"walking", false,
       [&] { questions.GoForward10(), questions.GoBack10(), questions.GoNext(), questions.GoNext(); }},
      {"previewing", false, preview},
      {"typing", true, [&] { Type(FormField::Essay, u"x"); }},
      {"typing and taking it back", false, typeAndTakeBack},
      {"removing a file, which sets no star", true, remove},
      {"the score setup", true, [&] { exam.scoreValue[0] = 2; }},
      {"deleting", true, [&] { questions.DeleteHere(); }}};
  Type(FormField::Text, u"first");
  Attach("note.txt", "the note");
  editor.questions.GoNext();
  editor.questions.SelectKind(QuestionKind::Oral);
  Type(FormField::Text, u"second");
  editor.questions.GoNext();
  exam.Question(4).answerLetters = u"CA";  // from another program
  exam.Question(4).answerText = u"a<@>";
  exam.Question(4).oralFlag = 1;
  exam.Question(5).text = u"last";
  SaveAs(folder / "saved.exm");
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    editor.state.MarkSaved();
    Open(folder / "saved.exm");
    row.change();
    keeper.LookAndWait();
    EXPECT_EQ(Copies().size(), row.differs ? 1u : 0u);
    editor.files.SaveExam();
    SaveAs(folder / "other.exm");
    EXPECT_TRUE(Copies().empty());
    keeper.LookAndWait();
    EXPECT_TRUE(Copies().empty());
  }
}

TEST_F(RecoveryTest, GoesOnlyWithASaveOrANo) {
  const auto answer = [&](SaveAnswer given) { world.dialogs.answers = {given}; };
  const auto cannotSave = [&] { editor.state.SetFileName(folder / "missing" / "x.exm"); };
  const auto close = [&](SaveAnswer given) { answer(given), editor.files.ConfirmClose(); };
  const auto start = [&](SaveAnswer given) { answer(given), editor.files.NewExam(); };
  const auto open = [&](SaveAnswer given) { answer(given), Open(folder / "saved.exm"); };
  const struct {
    const char* name;
    std::function<void()> part;
    std::size_t copies;
  } rows[] = {{"escape", [&] { keeper.Left(Parting::Leave); }, 1},
              {"close, no", [&] { close(SaveAnswer::No); }, 0},
              {"close, cancel", [&] { close(SaveAnswer::Cancel); }, 1},
              {"close, yes", [&] { close(SaveAnswer::Yes); }, 0},
              {"close, yes, which fails", [&] { cannotSave(), close(SaveAnswer::Yes); }, 1},
              {"new, no", [&] { start(SaveAnswer::No); }, 0},
              {"new, yes, which fails", [&] { cannotSave(), start(SaveAnswer::Yes); }, 1},
              {"open, no", [&] { open(SaveAnswer::No); }, 0},
              {"open, no, but no file", [&] { answer(SaveAnswer::No), editor.files.OpenExam(); }, 1},
              {"open, yes, which fails", [&] { cannotSave(), open(SaveAnswer::Yes); }, 1},
              {"new, after what sets no star", [&] { editor.state.MarkSaved(), editor.files.NewExam(); }, 1}};
  SaveAs(folder / "saved.exm");
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    Open(folder / "saved.exm");
    world.dialogs.filesToOpen.clear();
    Attach("note.txt", "the note");
    Type(FormField::Text, u"not saved");
    if (row.copies == 0) keeper.LookAndWait();
    Turn();
    row.part();
    keeper.Left(Parting::Leave);
    ASSERT_EQ(Copies().size(), row.copies);
    if (row.copies != 0) {
      const auto run = Restart();
      EXPECT_EQ(run->editor.questions.Form().text, u"not saved");
      EXPECT_EQ(ReadBytes(run->exam.Question(1).attachmentPaths[0]), "the note");
      run->keeper.Left(Parting::GiveUp);
    }
    EXPECT_FALSE(fs::exists(RecoveryRoot(world.services.applicationFolder)));
    editor.state.MarkSaved();
    keeper.Entered();
    posted = false;
  }
}

TEST_F(RecoveryTest, DamagedCopiesAreKeptAside) {
  Attach("note.txt", "the note");
  Type(FormField::Text, u"text");
  keeper.LookAndWait();
  const fs::path copy = Copies()[0].folder;
  const std::string whole = ReadBytes(RecoveryFilePath(copy));
  for (std::size_t i = 0; i < whole.size(); i += 1 + i / 64) {
    std::string cut = whole.substr(0, i);
    WriteBytes(RecoveryFilePath(copy), cut);
    ASSERT_EQ(FindRecoveryCopies(world.services).damaged.size(), 1u) << i;
    cut = whole;
    cut[i] = static_cast<char>(cut[i] ^ 4);
    WriteBytes(RecoveryFilePath(copy), cut);
    ASSERT_EQ(FindRecoveryCopies(world.services).damaged.size(), 1u) << i;
  }
  EXPECT_EQ(RestoreExam(copy, editor), std::nullopt);
  EXPECT_EQ(editor.questions.Form().text, u"");
  const fs::path aside = SetAside(copy);
  EXPECT_TRUE(FindRecoveryCopies(world.services).damaged.empty());
  EXPECT_TRUE(fs::exists(RecoveryFilePath(aside)));

  fs::create_directories(copy);
  WriteBytes(copy / "file-1", "of a copy that was only begun");
  EXPECT_TRUE(Copies().empty());
  EXPECT_FALSE(fs::exists(copy));
}

}  // namespace
}  // namespace quorvantis::test
