// SPDX-License-Identifier: MIT
#include "EditorTest.h"
#include "editor/WorkCopies.h"

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::u16string>;

class Attaching : public EditorTest {
 protected:
  fs::path MakeFile(const fs::path& name, std::string_view content = "content") {
    return WriteBytes(folder / name, content);
  }
  fs::path WorkRoot() const { return world.services.applicationFolder / "~TEMP"; }

  /// Fills the exam's lists with ten files, as if they had been read from an exam file.
  void FillExamList() {
    for (std::size_t i = 0; i < kMaxAttachments; ++i) {
      const std::u16string digit(1, static_cast<char16_t>(u'0' + i));
      exam.examAttachmentPaths[i] = AsText(MakeFile("unpacked" + std::to_string(i)));
      exam.examAttachmentNames[i] = u"name" + digit;
      exam.examAttachmentCopies[i] = exam.examAttachmentPaths[i];
    }
    Show();
  }
  void RemoveExamFile(std::size_t index) {
    editor.attachments.SelectExamFile(index);
    editor.attachments.RemoveSelectedAttachment(AttachedTo::Exam);
  }
};

TEST(WorkCopyNames, AreMadeOfFolderAndCounter) {
  const std::tuple<const char*, int, std::u16string, std::u16string> rows[] = {
      {"/home/docs/photo.jpg", 3, u"homedocs", u"photo~3.jpg"},
      {"/a:b/c.d/x.tar.gz", 12, u"abc.d", u"x.tar~12.gz"},
      {"/lib/bill", 1, u"lib", u"~1bill"},  // folder names may share letters with the file name
      {"/photo.jpg", 1, u"", u"photo~1.jpg"},
      {"/d/.profile", 2, u"d", u"~2.profile"}};
  for (const auto& [source, counter, from, copy] : rows) {
    EXPECT_EQ(SourceFolder(source), from) << source;
    EXPECT_EQ(CopyFolder(source, counter), copy) << source;
  }
}

TEST_F(Attaching, CopiesTheFileAtOnce) {
  const fs::path photo = MakeFile("photo.jpg", "picture");
  editor.attachments.AttachExamFile();  // the dialog is cancelled
  EXPECT_EQ(world.dialogs.requests.size(), 1u);
  EXPECT_FALSE(Modified() || fs::exists(WorkRoot()));
  world.dialogs.filesToOpen = {photo, photo};
  editor.attachments.AttachQuestionFile();
  EXPECT_TRUE(Modified());
  editor.attachments.AttachQuestionFile();
  editor.questions.GoNext();
  editor.attachments.AttachExamFile(MakeFile("report"));

  const fs::path from = WorkRoot() / SourceFolder(photo);
  const ExamQuestion& question = exam.Question(1);
  EXPECT_EQ(question.attachmentNames[0], u"photo.jpg");
  EXPECT_EQ(question.attachmentPaths[0], AsText(from / "photo~1.jpg" / "photo.jpg"));
  EXPECT_EQ(question.attachmentPaths[1], AsText(from / "photo~2.jpg" / "photo.jpg"));
  EXPECT_EQ(ReadBytes(question.attachmentPaths[1]), "picture");
  EXPECT_EQ(exam.examAttachmentPaths[0], AsText(from / "~3report" / "report"));
  EXPECT_EQ(editor.attachments.ExamList().names, Names{u"report"});
  EXPECT_EQ(question.attachmentCopies[0], u"") << "removed with the work root, not one by one";
  EXPECT_FALSE(editor.attachments.QuestionList().visible);
  EXPECT_EQ(world.dialogs.requests[0].filter, u"[143 %s][1127 %s]");

  editor.state.MarkSaved();
  editor.files.NewExam();
  editor.attachments.AttachQuestionFile(photo);
  EXPECT_TRUE(exam.Question(1).attachmentPaths[0].ends_with(u"photo~4.jpg/photo.jpg"))
      << "the counter goes on";
}

TEST_F(Attaching, TakesAnyFileNameAndItsFailures) {
  const auto attach = [this](const fs::path& source) {
    editor.attachments.AttachExamFile(source);
    const std::size_t last = editor.attachments.ExamList().names.size() - 1;
    EXPECT_EQ(exam.examAttachmentNames[last], AsText(source.filename()));
    return fs::path(exam.examAttachmentPaths[last]);
  };
  const fs::path script = MakeFile("run.sh", "#!/bin/sh");
  fs::permissions(script, fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_exec);
  const fs::path copy = attach(script);
  EXPECT_EQ(ReadBytes(copy), "#!/bin/sh");
  EXPECT_EQ(fs::status(copy).permissions(), fs::perms::owner_read | fs::perms::owner_write);

  EXPECT_EQ(ReadBytes(attach(MakeFile(std::string(254, 'n')))), "content");
  const fs::path linked = MakeFile("in/x");
  fs::create_directory_symlink(folder.Path(), WorkRoot() / SourceFolder(linked));
  EXPECT_EQ(ReadBytes(attach(linked)), "content");
  EXPECT_FALSE(fs::exists(folder / "~3x")) << "a link in the work root leads nowhere";
  fs::path deep;
  for (int i = 0; i < 6; ++i) deep /= std::string(60, static_cast<char>('a' + i));
  EXPECT_EQ(ReadBytes(attach(MakeFile(deep / "x"))), "content");

  EXPECT_EQ(editor.attachments.CopyProblem(), u"");
  EXPECT_FALSE(fs::exists(attach(folder / "absent.txt")));
  EXPECT_EQ(editor.attachments.CopyProblem(), u"[1827 " + AsText(folder / "absent.txt") + u"]");
  EXPECT_FALSE(fs::exists(attach(folder.Path())));
  EXPECT_EQ(editor.attachments.ExamList().names.size(), 6u);
  EXPECT_TRUE(world.dialogs.errors.empty() && world.dialogs.warnings.empty());
  editor.attachments.AttachQuestionFile();  // cancelled
  EXPECT_EQ(editor.attachments.CopyProblem(), u"") << "of an earlier file";
}

TEST_F(Attaching, RefusesTheEleventhFileSilently) {
  AttachmentEditor& attachments = editor.attachments;
  const fs::path file = MakeFile("x.txt");
  for (std::size_t i = 0; i < 2 * kMaxAttachments; ++i) {
    if (i == kMaxAttachments) editor.state.MarkSaved();
    attachments.AttachExamFile(file);
    attachments.AttachQuestionFile(file);
  }
  attachments.AttachExamFile();
  attachments.AttachQuestionFile();
  EXPECT_FALSE(Modified());
  EXPECT_TRUE(world.dialogs.requests.empty());
  attachments.SelectExamFile(9);
  attachments.RemoveSelectedAttachment(AttachedTo::Exam);
  attachments.AttachExamFile(file);
  EXPECT_TRUE(exam.examAttachmentPaths[9].ends_with(u"x~21.txt/x.txt")) << "a refused file takes no number";
}

TEST_F(Attaching, RemovesTheSelectedEntry) {
  const std::pair<std::optional<std::size_t>, AttachmentList> rows[] = {
      {std::nullopt, {u"0", u"1", u"2"}}, {0, {u"1", u"2"}}, {1, {u"0", u"2"}}, {2, {u"0", u"1"}}};
  for (const auto& [selected, left] : rows) {
    ExamQuestion& question = exam.Question(1);
    for (auto* list : {&exam.examAttachmentPaths, &exam.examAttachmentNames, &question.attachmentPaths,
                       &question.attachmentNames}) {
      *list = {u"0", u"1", u"2"};
    }
    Show();
    editor.attachments.SelectExamFile(selected);
    editor.attachments.SelectQuestionFile(selected);
    editor.attachments.RemoveSelectedAttachment(AttachedTo::Exam);
    editor.attachments.RemoveSelectedAttachment(AttachedTo::Question);
    EXPECT_EQ(std::tie(exam.examAttachmentPaths, exam.examAttachmentNames), std::tie(left, left));
    EXPECT_EQ(std::tie(question.attachmentPaths, question.attachmentNames), std::tie(left, left));
    EXPECT_FALSE(Modified());
  }
}

TEST_F(Attaching, FullExamListTakesUpWhatFollowsIt) {
  FillExamList();
  RemoveExamFile(9);
  EXPECT_EQ(exam.examAttachmentPaths[9], u"");
  EXPECT_EQ(exam.examAttachmentNames[9], u"");

  FillExamList();
  RemoveExamFile(0);
  EXPECT_EQ(editor.attachments.ExamList().names.size(), 9u);
  EXPECT_EQ(exam.examAttachmentPaths[9], u"name1") << "the first name after the shift";
  EXPECT_EQ(exam.examAttachmentNames[9], exam.examAttachmentCopies[0]);

  FillExamList();
  RemoveExamFile(4);
  EXPECT_EQ(exam.examAttachmentPaths[9], u"name0");
  EXPECT_EQ(exam.examAttachmentPaths[8], exam.examAttachmentCopies[9]);

  SaveAs(folder / "full.exm");
  Open(folder / "full.exm");
  ASSERT_EQ(editor.attachments.ExamList().names.size(), 10u);
  EXPECT_EQ(editor.attachments.ExamList().names[4], u"name5");
  EXPECT_EQ(ReadBytes(exam.examAttachmentPaths[8]), "content");
  EXPECT_FALSE(fs::exists(exam.examAttachmentPaths[9])) << "an entry without content";
}

TEST_F(Attaching, AHostileNameBringsNoFileIntoTheExam) {
  const fs::path secret = MakeFile("secret.txt", "TOP SECRET");
  const auto saved = [&] {
    SaveAs(folder / "hostile.exm");
    EXPECT_TRUE(world.dialogs.errors.empty());
    return ReadBytes(folder / "hostile.exm");
  };
  FillExamList();
  exam.examAttachmentNames[0] = AsText(secret);
  Show();
  RemoveExamFile(3);
  ASSERT_EQ(exam.examAttachmentPaths[9], AsText(secret));
  EXPECT_EQ(saved().find("TOP SECRET"), std::string::npos);
  editor.questions.GoNext();  // moving on brings the tenth entry back into the list
  RemoveExamFile(1);
  ASSERT_EQ(exam.examAttachmentPaths[8], AsText(secret));
  EXPECT_EQ(saved().find("TOP SECRET"), std::string::npos);
  EXPECT_NE(saved().find("content"), std::string::npos);
}

TEST_F(Attaching, ListsMoveWithTheirQuestions) {
  const auto listOf = [](int slot) {
    return slot == 0 ? AttachmentList() : AttachmentList{AsText(std::to_string(slot)), u"second"};
  };
  const struct {
    void (QuestionEditor::*command)();
    int at, slot, source;
  } rows[] = {{&QuestionEditor::InsertHere, 99, 98, 98},    {&QuestionEditor::InsertHere, 99, 99, 0},
              {&QuestionEditor::InsertHere, 99, 100, 99},   {&QuestionEditor::InsertHere, 1, 101, 101},
              {&QuestionEditor::InsertHere, 100, 101, 101}, {&QuestionEditor::InsertHere, 500, 500, 0},
              {&QuestionEditor::DeleteHere, 2, 1, 1},       {&QuestionEditor::DeleteHere, 2, 2, 3},
              {&QuestionEditor::DeleteHere, 2, 499, 500},   {&QuestionEditor::DeleteHere, 500, 500, 0}};
  for (const auto& [command, at, slot, source] : rows) {
    for (int n = 1; n <= kMaxQuestions; ++n)
      exam.Question(n).attachmentPaths = exam.Question(n).attachmentNames = listOf(n);
    ShowQuestion(at);
    (editor.questions.*command)();
    EXPECT_EQ(exam.Question(slot).attachmentPaths, listOf(source)) << at << ", " << slot;
    EXPECT_EQ(exam.Question(slot).attachmentNames, listOf(source)) << at << ", " << slot;
    const std::size_t shown = exam.Question(at).attachmentNames[0].empty() ? 0 : 2;
    EXPECT_EQ(editor.attachments.QuestionList().names.size(), shown) << at;
  }
}

TEST_F(Attaching, OralToggleShowsForASelectedFile) {
  AttachmentEditor& attachments = editor.attachments;
  const auto check = [&](const char* after, bool visible, int flag) {
    EXPECT_EQ(attachments.OralToggleVisible(), visible) << after;
    EXPECT_EQ(exam.Question(1).oralFlag, flag) << after;
    EXPECT_EQ(attachments.OralToggleCaption(), flag == 1 ? u"[173 %s]" : u"[172 %s]") << after;
  };
  exam.Question(1).kind = exam.Question(3).kind = QuestionKind::Oral;
  exam.Question(2).oralFlag = exam.Question(3).oralFlag = 1;
  Show();
  attachments.AttachQuestionFile(MakeFile("a.wav"));
  attachments.SelectQuestionFile(0);
  check("selecting alone", false, 0);
  attachments.AttachQuestionFile(MakeFile("b.wav"));
  check("attaching beside a selected one", true, 0);
  attachments.ToggleOral();
  attachments.ToggleOral();
  check("toggling twice", true, 0);
  attachments.ToggleOral();
  attachments.RemoveSelectedAttachment(AttachedTo::Question);
  check("removing the selected one", false, 1);
  ShowQuestion(2);
  ShowQuestion(3);
  EXPECT_EQ(exam.Question(2).oralFlag, 0) << "only an oral question keeps it";
  EXPECT_EQ(exam.Question(3).oralFlag, 1);
}

}  // namespace
}  // namespace quorvantis::test
