// SPDX-License-Identifier: MIT
#include "editor/EditorTest.h"
#include "editor/WorkCopies.h"
#include "taking/OtherExam.h"

#include <functional>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

/// An editor with an exam of its own, and beside it a file of three questions, the second with two files.
class TakingQuestions : public EditorTest {
 protected:
  TakingQuestions() {
    exam.Question(1).text = u"first";
    exam.Question(2).text = u"second";
    exam.Question(2).answerText = std::u16string(300, u'x');
    exam.Question(2).kind = QuestionKind::FillIn;
    exam.Question(3).text = u"third";
    ShowQuestion(2);
    editor.attachments.AttachQuestionFile(WriteBytes(folder / "picture.png", "pixels"));
    editor.attachments.AttachQuestionFile(WriteBytes(folder / "empty.txt", ""));
    editor.files.SetLongAnswersWhole(true);
    SaveAs(file);
    editor.files.NewExam();
    Type(FormField::Text, u"mine");
    editor.questions.StoreCurrentQuestion();
    editor.attachments.AttachQuestionFile(WriteBytes(folder / "mine.txt", "my file"));
    SaveAs(folder / "mine.exm");
    Open(folder / "mine.exm");
  }

  OtherExam OpenOther() {
    return OtherExam(world.services, workRoot, file, editor.attachments.TakeCopyNumber());
  }
  std::vector<fs::path> FilesIn(const fs::path& place) const {
    std::vector<fs::path> found;
    for (const auto& entry : fs::recursive_directory_iterator(place))
      if (entry.is_regular_file()) found.push_back(entry.path());
    std::ranges::sort(found);
    return found;
  }

  const fs::path file = folder / "other.exm";
  const fs::path workRoot = AttachmentWorkRoot(folder / "app");
};

TEST_F(TakingQuestions, TakesThemWholeAndLeavesTheOpenExamAlone) {
  const std::vector<fs::path> before = FilesIn(folder / "app");
  {
    const OtherExam other = OpenOther();
    EXPECT_EQ(other.Problem(), u"");
    ASSERT_EQ(other.QuestionCount(), 3);
    TakenQuestions taken = other.Take({2, 3});
    ASSERT_EQ(taken.problem, u"");
    ASSERT_TRUE(editor.order.InsertWhole(std::move(taken.questions), 1).IsDone());
  }
  EXPECT_EQ(editor.state.CurrentQuestion(), 2);
  const ExamQuestion& question = exam.Question(2);
  EXPECT_EQ(question.text, u"second");
  EXPECT_EQ(question.answerText.size(), 300U);
  EXPECT_TRUE(world.longAnswerFlags.IsSet(2));
  EXPECT_EQ(ReadBytes(fs::path(question.attachmentPaths[0])), "pixels");
  EXPECT_EQ(question.attachmentNames[1], u"empty.txt");
  EXPECT_TRUE(exam.pathsWithoutContent.contains(question.attachmentPaths[1]));
  EXPECT_EQ(ReadBytes(fs::path(exam.Question(1).attachmentPaths[0])), "my file");
  EXPECT_EQ(FilesIn(folder / "app").size(), before.size() + 1) << "nothing but the picture's copy stays";
  EXPECT_TRUE(world.dialogs.errors.empty() && world.dialogs.warnings.empty());
}

TEST_F(TakingQuestions, TellsWhatIsWrongAndTakesNothing) {
  const std::string bytes = ReadBytes(file);
  struct Row {
    const char* what;
    std::function<void()> beforeOpening, beforeTaking;
    int number;
    std::u16string problem;
  };
  const auto nothing = [] {};
  const auto unpacked = [&] {
    for (const fs::path& found : FilesIn(workRoot))
      if (found.filename() == "picture.png" && found.string().find(".other-exam") != std::string::npos)
        fs::remove(found);
  };
  const Row rows[] = {
      {"no such question", nothing, nothing, 4, u"[1478 " + AsText(file) + u"]"},
      {"number 0", nothing, nothing, 0, u"[1478 " + AsText(file) + u"]"},
      {"changed", nothing, [&] { WriteBytes(file, bytes + "x"); }, 1, u"[1474 " + AsText(file) + u"]"},
      {"gone", nothing, [&] { fs::remove(file); }, 1, u"[1475 " + AsText(file) + u"]"},
      {"not unpacked", nothing, unpacked, 2, u"[1480 picture.png]"},
      {"cut", [&] { WriteBytes(file, bytes.substr(0, bytes.size() - 30000)); }, nothing, 3,
       u"[1479 " + AsText(file) + u"]"},
      {"no exam", [&] { WriteBytes(file, "a letter to my aunt"); }, nothing, 1,
       u"[1476 " + AsText(file) + u"]"},
      {"a folder", [&] { fs::remove(file), fs::create_directory(file); }, nothing, 1,
       u"[102 " + AsText(file) + u"]\n[1135 %s]"},
      {"missing", [&] { fs::remove(file); }, nothing, 1, u"[102 " + AsText(file) + u"]\n[1129 %s]"}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    fs::remove_all(file);
    WriteBytes(file, bytes);
    row.beforeOpening();
    const OtherExam other = OpenOther();
    row.beforeTaking();
    const TakenQuestions taken = other.Take({row.number});
    EXPECT_EQ(taken.problem, row.problem);
    EXPECT_TRUE(taken.questions.empty());
  }
  EXPECT_TRUE(world.dialogs.errors.empty()) << "messages are for the caller";
}

TEST_F(TakingQuestions, OffersWhatComesBeforeTheDamage) {
  const std::string bytes = ReadBytes(file);
  for (std::size_t size = 0; size < bytes.size(); size += 997) {
    WriteBytes(file, bytes.substr(0, size));
    const OtherExam other = OpenOther();
    EXPECT_LE(other.QuestionCount(), 2) << size;
    if (other.QuestionCount() == 0) continue;
    EXPECT_EQ(other.Take({1}).questions[0].question.text, u"first");
  }
}

}  // namespace
}  // namespace quorvantis::test
