// SPDX-License-Identifier: MIT
// preview and print.
#include "CommandLineTest.h"

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

class PageCommands : public CommandLineTest {
 protected:
  /// Builds exam.exm with a choice, a fill-in and an oral question, and attaches the given files to the exam.
  void BuildExam(const std::vector<std::string>& names = {}) {
    Json exam = Json::parse(R"({"title": "Title", "questions": [
      {"kind": "Choice", "text": "One", "options": ["a", "b"], "answerLetters": "b"},
      {"kind": "FillIn", "text": "Two", "answerText": "x<@>y"},
      {"kind": "Oral", "text": "Three"}]})");
    for (const std::string& name : names) {
      WriteBytes(folder / name, "content");
      exam["attachments"].push_back({{"path", name}});
    }
    const RunResult built = Build(exam);
    ASSERT_EQ(built.status, 0) << built.err;
  }

  void Succeeds(const std::vector<std::string>& arguments) {
    const RunResult run = Command(arguments);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out + run.err, "");
  }

  /// The characters of a page stored as UTF-16.
  std::string Halved(const char* file) const {
    std::string text = ReadBytes(folder / file);
    std::erase(text, '\0');
    return text;
  }
};

bool Has(const std::string& page, const std::string& part) {
  return page.find(part) != std::string::npos;
}

TEST_F(PageCommands, ASheetIsWrittenWholeAndNothingElse) {
  BuildExam();
  Succeeds({"print", Path("exam.exm"), Path("app"), "--solutions", "--large-print"});
  const std::string page = ReadBytes(folder / "app/exam_Solutions.htm");
  EXPECT_TRUE(page.starts_with("<!DOCTYPE html>"));
  EXPECT_TRUE(page.ends_with("</html>\n"));
  EXPECT_TRUE(Has(page, "x / y"));
  EXPECT_FALSE(fs::exists(folder / "app/exam_Print.htm"));
  const RunResult failed = Command({"print", Path("exam.exm"), Path("exam.exm"), "--key"});
  EXPECT_EQ(failed.status, 1);
}

TEST_F(PageCommands, PreviewOfAStudentShowsTheResponses) {
  BuildExam({"a.gif", "x.doc"});
  WriteBytes(folder / "responses.json", R"({"resultScore": 7.5, "resultPageOption": 0,
    "responses": [{"number": 1, "text": "ab", "value": 0}, {"number": 2, "text": "x", "value": 1}]})");
  const fs::path before = fs::current_path();
  fs::current_path(folder.Path());
  Succeeds({"preview", "exam.exm", "app", "--student", "007", "--responses", "responses.json"});
  EXPECT_EQ(fs::current_path(), folder.Path());
  fs::current_path(before);
  const char* const page = "app/~BrelmStudent/ID7/SEE1.htm";
  EXPECT_TRUE(Has(Halved(page), "Your score is <font color=\"blue\">7.50</font>"));
  EXPECT_TRUE(Has(ReadBytes(folder / "app/~BrelmStudent/ID7/SEE2.htm"),
                  "<FRAME  SRC=\"~BrelmStudent/ID7/SEE2_1.htm\">\r\n"
                  "<FRAME  SRC=\"~Br~BrelmStudent/ID7/~tt/x.doc\">\r\n"));
  Succeeds({"preview", Path("exam.exm"), Path("other"), "--student", ""});
  EXPECT_TRUE(fs::exists(folder / "other/~BrelmStudent/ID0/SEE1.htm"));
}

TEST_F(PageCommands, PrintDependsOnAnEarlierPreview) {
  BuildExam({"a.gif"});
  Succeeds({"print", Path("exam.exm"), Path("app")});
  EXPECT_TRUE(Has(Halved("app/exam_Print.htm"), "<center>Title</center>"));
  const auto withoutRecorder = fs::file_size(folder / "app/exam_Print.htm");
  Succeeds({"print", Path("exam.exm"), Path("app"), "--after-preview"});
  EXPECT_GT(fs::file_size(folder / "app/exam_Print.htm"), withoutRecorder + 500);
  EXPECT_TRUE(fs::exists(folder / "app/TEMP/ExamPreview/SEE2.htm"));
}

TEST_F(PageCommands, FailWithAReason) {
  BuildExam();
  const std::string exam = Path("exam.exm");
  WriteBytes(folder / "file/~BrelmStudent", "");
  ExpectFailure(Command({"preview", exam, Path("file"), "--student", "1"}), "cannot be made as a folder");
  fs::create_directories(folder / "taken/exam_Print.htm");
  ExpectFailure(Command({"print", exam, Path("taken")}), "exam_Print.htm: cannot be written");
  BuildExam({"a.doc", "b.gif"});
  fs::create_directories(folder / "taken/TEMP/ExamPreview/SEE2_2.htm");
  ExpectFailure(Command({"preview", exam, Path("taken")}), "SEE2_2.htm: cannot be written");
}

}  // namespace
}  // namespace quorvantis::test
