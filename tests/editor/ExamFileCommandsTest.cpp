// SPDX-License-Identifier: MIT
#include "EditorTest.h"

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

class ExamFileEditing : public EditorTest {
 protected:
  /// Saves an exam with two questions, a file attached to the first and a file attached to the exam.
  fs::path MakeExamWithFiles() {
    editor.attachments.AttachExamFile(WriteBytes(folder / "map.txt", "the map"));
    editor.attachments.AttachQuestionFile(WriteBytes(folder / "note.txt", "the note"));
    Type(FormField::Text, u"first");
    editor.questions.GoNext();
    Type(FormField::Text, u"second");
    SaveAs(folder / "files.exm");
    posted = false;
    editor.state.DeliverContentChanged();
    world.dialogs.answers = {SaveAnswer::No};
    editor.files.NewExam();
    world.dialogs.answers.clear();
    return folder / "files.exm";
  }
};

TEST_F(ExamFileEditing, CancelledFileDialogs) {
  Change();
  world.dialogs.answers = {SaveAnswer::Yes, SaveAnswer::No, SaveAnswer::Yes};
  EXPECT_TRUE(editor.files.ConfirmClose()) << "goes on without saving";
  EXPECT_TRUE(Modified());
  editor.files.OpenExam();
  EXPECT_EQ(editor.questions.Form().text, u"changed") << "nothing is opened";
  EXPECT_EQ(world.dialogs.requests.back().filter, u"[106 %s]");
  editor.files.NewExam();
  EXPECT_EQ(editor.questions.Form().text, u"");
  EXPECT_FALSE(Modified());
}

TEST_F(ExamFileEditing, SavesUnderTheNameItHas) {
  world.dialogs.filesToSave = {folder / "named.exm"};
  Change();
  editor.files.SaveExam();
  ASSERT_EQ(world.dialogs.requests.size(), 1u) << "an exam without a name asks for one";
  EXPECT_EQ(world.dialogs.requests[0].filter, u"[142 %s]");
  EXPECT_EQ(world.dialogs.requests[0].defaultExtension, u"exm");
  EXPECT_EQ(world.dialogs.requests[0].initialName, u"MyExam");
  EXPECT_FALSE(Modified());

  Type(FormField::Text, u"second thought");
  Turn();
  editor.files.SaveExam();
  EXPECT_EQ(world.dialogs.requests.size(), 1u);
  EXPECT_EQ(title, u"[107 " + AsText(folder / "named.exm") + u"]");
  editor.files.NewExam();
  Open(folder / "named.exm");
  EXPECT_EQ(editor.questions.Form().text, u"second thought");
}

TEST_F(ExamFileEditing, SaveAsProposesTheTitleWhereTheLastExamLies) {
  const std::pair<std::u16string, std::u16string> rows[] = {
      {u"", u"MyExam"},
      {u" Biology, term 1.2 ", u"Biology, term 1.2"},
      {u"..", u"MyExam"},
      {u"../a\\b:c*d?\r\n<e>|\"f\".", u"a b c d e f"},
      {u"letter.Doc", u"letter.Doc.exm"},  // letter.Doc would be exported
      {u"\u751F\u7269", u"\u751F\u7269"},
      {std::u16string(79, u'x') + u"\xD83D\xDE00", std::u16string(79, u'x')},
      {std::u16string(u"a\0\xD800", 3), u"a \xFFFD"}};
  for (const auto& [typed, proposed] : rows) {
    Type(FormField::Title, typed);
    editor.files.SaveExamAs();
    EXPECT_EQ(world.dialogs.requests.back().initialName, proposed);
  }
  EXPECT_EQ(world.dialogs.folder, "") << "before the first exam";
  SaveAs(folder / "one.exm");
  EXPECT_EQ(world.dialogs.folder, folder.Path());
  const fs::path other = folder / "other";
  fs::create_directory(other);
  fs::copy_file(folder / "one.exm", other / "two.exm");
  Open(other / "two.exm");
  editor.files.NewExam();
  EXPECT_EQ(world.dialogs.folder, other);
}

TEST_F(ExamFileEditing, ExtensionDecidesWhatSaveAsDoes) {
  enum What { Saves, Exports, Nothing };
  const std::pair<const char*, What> rows[] = {
      {"x.Exm", Saves},    {"x.doc.exm", Saves}, {"x.DOC", Exports}, {"x.exm.doc", Exports},
      {"x.docx", Nothing}, {"x.", Nothing},      {"exm", Nothing}};
  for (const auto& [name, what] : rows) {
    SCOPED_TRACE(name);
    world.dialogs.answers = {SaveAnswer::No};
    editor.files.NewExam();
    exported.clear();
    Change();
    SaveAs(folder / name);
    EXPECT_EQ(fs::exists(folder / name), what == Saves);
    EXPECT_EQ(exported.size(), what == Exports ? 1u : 0u);
    EXPECT_EQ(editor.state.FileName(), what == Saves ? folder / name : fs::path("UnTitle"));
    EXPECT_EQ(Modified(), what != Saves);
    EXPECT_EQ(exam.Question(1).text, what == Nothing ? u"" : u"changed") << "stored only when it is written";
  }
}

TEST_F(ExamFileEditing, FailedSaveKeepsTheChange) {
  Change();
  SaveAs(folder / "missing" / "x.exm");
  EXPECT_EQ(world.dialogs.errors,
            std::vector{u"[102 " + AsText(folder / "missing" / "x.exm") + u"]\n[1129 %s]"});
  EXPECT_TRUE(Modified());
  EXPECT_EQ(editor.state.FileName(), "UnTitle") << "the next save must not fail in the same way";
}

TEST_F(ExamFileEditing, KeepsThePreviousVersion) {
  const fs::path file = folder / "kept.exm";
  const fs::path backup = folder / "kept.exm~";
  const auto save = [&](std::u16string text) {
    Type(FormField::Text, std::move(text));
    editor.files.SaveExam();
    return ReadBytes(file);
  };
  SaveAs(file);
  save(u"without backups");
  EXPECT_FALSE(fs::exists(backup));
  editor.files.SetBackups(true);
  std::string previous = ReadBytes(file);
  for (const char16_t* text : {u"one", u"two", u"two"}) {
    const std::string saved = save(text);
    EXPECT_EQ(ReadBytes(backup), previous);
    previous = saved;
  }
  fs::remove(backup);
  fs::create_directories(backup / "not empty");
  previous = ReadBytes(file);
  EXPECT_NE(save(u"nowhere to keep it"), previous) << "saved all the same";
  EXPECT_TRUE(world.dialogs.errors.empty());
  SaveAs(folder / "new.exm");
  EXPECT_FALSE(fs::exists(folder / "new.exm~"));
  const auto isHidden = [](const fs::directory_entry& e) { return e.path().filename().string()[0] == '.'; };
  EXPECT_TRUE(std::none_of(fs::directory_iterator(folder.Path()), {}, isHidden)) << "nothing is left behind";
}

TEST_F(ExamFileEditing, GoesOnWithWhatAFileHolds) {
  const fs::path file = MakeExamWithFiles();
  fs::resize_file(file, fs::file_size(file) - 100);
  Open(file);
  EXPECT_EQ(world.dialogs.warnings.size(), 1u);
  EXPECT_EQ(editor.questions.Form().text, u"first");
  EXPECT_EQ(editor.attachments.ExamList().names, std::vector<std::u16string>{u"map.txt"});
  EXPECT_FALSE(Modified());

  editor.questions.GoNext();
  Open(folder / "absent.exm");
  EXPECT_EQ(world.dialogs.errors.size(), 1u);
  EXPECT_EQ(editor.state.CurrentQuestion(), 1);
  EXPECT_EQ(editor.questions.Form().text, u"");
  EXPECT_EQ(title, u"[107 " + AsText(folder / "absent.exm") + u"]");
}

TEST_F(ExamFileEditing, UnpackedFilesGoWithTheExam) {
  const fs::path file = MakeExamWithFiles();
  const auto check = [&](const char* name, bool nextHasFiles, auto command) {
    SCOPED_TRACE(name);
    Open(file);
    const std::vector<fs::path> unpacked{exam.examAttachmentPaths[0], exam.Question(1).attachmentPaths[0]};
    EXPECT_EQ(ReadBytes(unpacked[0]), "the map");
    EXPECT_EQ(ReadBytes(unpacked[1]), "the note");
    editor.questions.DeleteHere();  // no longer in the list, but the file is still the exam's to delete
    editor.state.DeliverContentChanged();
    WriteBytes(unpacked[0], "used");
    world.dialogs.answers = {SaveAnswer::No};
    command();
    EXPECT_NE(ReadBytes(unpacked[0]), "used");
    EXPECT_EQ(fs::exists(unpacked[0]), nextHasFiles);
    EXPECT_EQ(fs::exists(unpacked[1]), nextHasFiles);
    EXPECT_EQ(exam.examAttachmentCopies[0].empty(), !nextHasFiles);
    EXPECT_EQ(editor.attachments.ExamList().visible, nextHasFiles);
  };
  check("new", false, [&] { editor.files.NewExam(); });
  check("open", true, [&] { Open(file); });
  editor.files.NewExam();
  SaveAs(folder / "empty.exm");
  check("open another", false, [&] { Open(folder / "empty.exm"); });
}

}  // namespace
}  // namespace quorvantis::test
