// SPDX-License-Identifier: MIT
#include "RecoveryTest.h"

#include "editor/EditorSnapshot.h"
#include "editor/WorkCopies.h"
#include "examfile/SavingLosses.h"
#include "examfile/WorkFolder.h"
#include "support/TinyDisk.h"

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
  EXPECT_EQ(run->editor.state.currentQuestion, 500);
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

TEST_F(RecoveryTest, AnEmptyFileIsNoLostOne) {
  Attach("empty.txt", "");
  Attach("full.txt", "full");
  Type(FormField::Text, u"text");
  SaveAs(folder / "named.exm");
  Open(folder / "named.exm");
  Type(FormField::Text, u"changed");
  keeper.LookAndWait();
  const auto run = Restart();
  EXPECT_EQ(run->editor.attachments.QuestionList().missing, (std::vector<bool>{false, false}));
  EXPECT_TRUE(FindSavingLosses(run->exam, run->world.longAnswerFlags).empty());
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
  const Row rows[] = {
      {"nothing", false, [] {}},
      {"walking", false,
       [&] {
         for (int i = 0; i < 4; ++i) editor.questions.GoNext();
       }},
      {"previewing", false,
       [&] {
         editor.questions.StoreCurrentQuestion();
         exam.CountQuestions();
         exam.PrefixAttachmentPaths(1);
       }},
      {"typing", true, [&] { Type(FormField::Essay, u"x"); }},
      {"typing and taking it back", false,
       [&] {
         Type(FormField::Text, u"x");
         keeper.LookAndWait();
         Type(FormField::Text, u"first");
       }},
      {"removing a file, which sets no star", true,
       [&] {
         editor.attachments.SelectQuestionFile(0);
         editor.attachments.RemoveSelectedAttachment(AttachedTo::Question);
       }},
      {"the score setup", true, [&] { exam.scoreValue[0] = 2; }},
      {"the random mode", true, [&] { editor.questions.CycleRandomMode(); }},
      {"deleting", true, [&] { editor.questions.DeleteHere(); }},
  };
  Type(FormField::Text, u"first");
  Attach("note.txt", "the note");
  editor.questions.GoNext();
  editor.questions.SelectKind(QuestionKind::Oral);
  Type(FormField::Text, u"second");
  editor.questions.GoNext();
  exam.Question(4).answerLetters = u"CA";  // of another program
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
  struct Row {
    const char* name;
    std::function<void()> part;
    std::size_t copies;
  };
  const auto answer = [&](SaveAnswer given) { world.dialogs.answers = {given}; };
  const auto cannotSave = [&] { editor.state.SetFileName(folder / "missing" / "x.exm"); };
  const Row rows[] = {
      {"escape", [&] { keeper.Left(Parting::Leave); }, 1},
      {"close, no", [&] { answer(SaveAnswer::No), editor.files.ConfirmClose(); }, 0},
      {"close, cancel", [&] { answer(SaveAnswer::Cancel), editor.files.ConfirmClose(); }, 1},
      {"close, yes", [&] { answer(SaveAnswer::Yes), editor.files.ConfirmClose(); }, 0},
      {"close, yes, which fails", [&] { cannotSave(), answer(SaveAnswer::Yes), editor.files.ConfirmClose(); },
       1},
      {"new, no", [&] { answer(SaveAnswer::No), editor.files.NewExam(); }, 0},
      {"new, yes, which fails", [&] { cannotSave(), answer(SaveAnswer::Yes), editor.files.NewExam(); }, 1},
      {"open, no", [&] { answer(SaveAnswer::No), Open(folder / "saved.exm"); }, 0},
      {"open, no, but no file", [&] { answer(SaveAnswer::No), editor.files.OpenExam(); }, 1},
      {"open, yes, which fails", [&] { cannotSave(), answer(SaveAnswer::Yes), Open(folder / "saved.exm"); },
       1},
      {"new without a question, after what sets no star",
       [&] { editor.state.MarkSaved(), editor.files.NewExam(); }, 1},
  };
  SaveAs(folder / "saved.exm");
  for (const Row& row : rows) {
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

TEST_F(RecoveryTest, AnExamThatComesBackIsMeasuredByItsOwnFile) {
  SaveAs(folder / "saved.exm");
  Attach("note.txt", "the note");
  Type(FormField::Text, u"in the file");
  editor.files.SaveExam();
  EditorSnapshot before(editor);
  const auto check = [&](const char* name, std::size_t copies, auto change) {
    SCOPED_TRACE(name);
    before.Take();
    change();
    keeper.LookAndWait();
    before.Restore();
    keeper.LookAndWait();
    EXPECT_EQ(Copies().size(), copies);
    EXPECT_EQ(Restart(copies)->editor.questions.Form().text, copies == 0 ? u"" : u"in the file");
  };
  check("a change", 0, [&] { Type(FormField::Text, u"x"); });
  check("a new exam", 0, [&] {
    editor.files.StartNewExam();
    Type(FormField::Text, u"x");
    keeper.LookAndWait();
    SaveAs(folder / "new.exm");
    exam.pageRenderer.SetMediaSuppressed(0);
    exam.attachmentPageWriter.SetMediaSuppressed(0);
  });
  EXPECT_EQ(exam.pageRenderer.mediaSuppressed + exam.attachmentPageWriter.mediaSuppressed, 0)
      << "once a preview has shown media, the whole run does";
  check("a change that was saved", 1, [&] {
    Type(FormField::Text, u"x");
    editor.files.SaveExam();
  });
}

TEST_F(RecoveryTest, EachEditorHasItsOwnCopy) {
  Type(FormField::Text, u"older");
  keeper.Left(Parting::Leave);
  Run second(world.services.applicationFolder);
  second.editor.questions.EditField(FormField::Text, u"newer");
  second.keeper.LookAndWait();
  EXPECT_EQ(Copies().size(), 2u);
  second.keeper.Left(Parting::GiveUp);
  EXPECT_EQ(Restart()->editor.questions.Form().text, u"older");
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

TEST_F(RecoveryTest, TriesAgainWhenACopyCannotBeWritten) {
  const fs::path root = RecoveryRoot(world.services.applicationFolder);
  WriteBytes(root, "a file in its place");
  Type(FormField::Text, u"text");
  keeper.LookAndWait();
  EXPECT_TRUE(keeper.Failure());
  fs::remove(root);
  keeper.LookAndWait();
  EXPECT_FALSE(keeper.Failure());
  EXPECT_EQ(Copies().size(), 1u);
}

TEST_F(RecoveryTest, OnAFullDiskTheLastCopyStaysWhole) {
  TinyDisk disk(4096);
  if (!disk.Works()) GTEST_SKIP() << "no disk can be mounted here";
  Run run(disk.Path());
  const auto look = [&](const std::u16string& typed) {
    run.editor.questions.EditField(FormField::Title, typed);
    run.keeper.LookAndWait();
    const auto found = FindRecoveryCopies(run.world.services);
    return found.damaged.empty() && found.copies.size() == 1 ? found.copies[0].title : u"none";
  };
  const auto filesOfCopy = [&] {
    const fs::path copy = RecoveryRoot(disk.Path()) / "1";
    return std::distance(fs::directory_iterator(copy), fs::directory_iterator());
  };
  run.editor.attachments.AttachQuestionFile(WriteBytes(folder / "a.txt", "a"));
  EXPECT_EQ(look(u"first"), u"first");
  run.editor.questions.EditField(FormField::Text, std::u16string(4000, u'x'));
  disk.Leave(4);
  run.editor.attachments.AttachQuestionFile(WriteBytes(folder / "b.txt", "b"));
  for (int tries = 0; tries < 3; ++tries) {
    EXPECT_EQ(look(u"second"), u"first");
    EXPECT_TRUE(run.keeper.Failure());
    EXPECT_EQ(filesOfCopy(), 2) << "nothing is left of an attempt";
  }
  disk.Leave(100);
  EXPECT_EQ(look(u"third"), u"third");
  EXPECT_FALSE(run.keeper.Failure());
  EXPECT_EQ(filesOfCopy(), 3);
}

}  // namespace
}  // namespace quorvantis::test
