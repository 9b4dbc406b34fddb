// SPDX-License-Identifier: MIT
#include "ExamFileTest.h"

namespace quorvantis::test {
namespace {

class DamagedExamFile : public ExamFileTest {
 protected:
  static ExamBytes Small(const Form& form) {
    TypedExam typed{.title = u"title"};
    typed.questions = {{.kind = u"1", .text = u"first", .answer = u"ExcessTextAns", .longAnswer = u"long"},
                       {.kind = u"0", .text = u"second", .letters = u"b"}};
    if (form.fileName > 0) {
      typed.files = {{u"exam", "exam level"}};
      typed.questions[0].files = {{u"a.doc", "abcdef"}, {u"a.doc", "ghi"}};
      typed.questions[1].files = {{u"b.doc", "jkl"}};
    }
    return Type(form, typed);
  }

  /// Reads the intact file into the document in the state that the damaged one left.
  void ExpectUsable(const Form& form, const std::string& good) {
    Read(good);
    ASSERT_TRUE(world.dialogs.errors.empty() && world.dialogs.warnings.empty());
    ASSERT_EQ(exam.title, form.titleStart + u"title");
    ASSERT_EQ(exam.Question(1).text, u"first");
    ASSERT_EQ(exam.Question(1).answerText, form.current ? u"long" : u"ExcessTextAns");
    ASSERT_EQ(exam.Question(2).answerMask, 8);
    ASSERT_EQ(exam.Question(2).attachmentPaths[0], form.fileName > 0 ? PathToText(work / "b.doc") : u"");
    ASSERT_EQ(ReadBytes(work / "0a.doc"), form.fileName > 0 ? "ghi" : "");
  }
};

TEST_F(DamagedExamFile, GivesWhatWasWholeWhereverItIsCut) {
  for (const Form& form : AllForms()) {
    SCOPED_TRACE(form.name);
    const ExamBytes typed = Small(form);
    std::set<std::size_t> cuts;
    // Inside the long fields, and at both ends of every field.
    for (std::size_t cut = 0; cut < typed.bytes.size(); cut += 997) cuts.insert(cut);
    for (const std::size_t end : typed.ends) cuts.insert({end, end + 1});
    for (const std::size_t cut : cuts) {
      if (cut >= typed.bytes.size()) break;
      Read(typed.bytes.substr(0, cut));
      const bool firstWhole = cut >= typed.questionEnds[0];
      ASSERT_EQ(world.dialogs.warnings, Messages{firstWhole ? u"[1000 2]" : u"[1000 1]"}) << cut;
      ASSERT_TRUE(!firstWhole || exam.Question(1).text == u"first") << cut;
      ASSERT_TRUE(cut < typed.ends[2] || exam.title == form.titleStart + u"title") << cut;
      ASSERT_EQ(Surroundings(), kUntouched) << cut;
      if (cut % 5 == 0) ExpectUsable(form, typed.bytes);
    }
  }
  const std::string onlyFiles = Type(AllForms()[0], {.files = {{u"a.doc", "abc"}}}).bytes;
  Read(onlyFiles.substr(0, onlyFiles.size() - 1));
  EXPECT_EQ(world.dialogs.warnings, Messages{u"[1001 %s]"});
  EXPECT_EQ(ReadBytes(work / "a.doc"), "ab");
}

TEST_F(DamagedExamFile, MayShrinkWhileItIsRead) {
  const std::string bytes = Type(AllForms()[0], {.files = {{u"a.doc", std::string(3'000'000, 'x')}}}).bytes;
  world.progress.whileWorking = [&] { std::filesystem::resize_file(folder / "read.exm", 1'000'000); };
  Read(bytes);
  EXPECT_EQ(world.dialogs.warnings, Messages{u"[1001 %s]"});
  EXPECT_LT(std::filesystem::file_size(work / "a.doc"), 1'000'000U);
}

TEST_F(DamagedExamFile, NeverWritesOutsideTheWorkFolder) {
  const std::pair<std::u16string, std::string> rows[] = {
      {u"../../x", "x"},   {u"/etc/passwd", "passwd"},
      {u"..\\..\\y", "y"}, {u"C:\\dir/z.doc", "z.doc"},
      {u"..", "0.."},      {u".", "0."},
      {u"", "0"},          {u"a/..", "1.."},
      {u"folder/", "1"},   {u"\x01\r\n\x7F\x9F", "2"},
      {u"a\nb", "ab"},     {u"\xD800lone", "\xEF\xBF\xBDlone"},
      {u"../~tt", "~tt"},  {u"x", "0x"}};
  TypedExam typed;
  for (const auto& [name, unpackedAs] : rows)
    typed.questions.push_back({.kind = u"0", .files = {{name, unpackedAs}}});
  std::filesystem::create_directories(work.parent_path());
  std::filesystem::create_directory_symlink(folder / "beside", work);
  Read(Type(AllForms()[0], typed).bytes);
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    const auto& [name, unpackedAs] = rows[i];
    EXPECT_EQ(exam.questions[i + 1].attachmentPaths[0], PathToText(work / unpackedAs));
    EXPECT_EQ(exam.questions[i + 1].attachmentNames[0], name);
    EXPECT_EQ(ReadBytes(work / unpackedAs), unpackedAs);
    EXPECT_NE(access((work / unpackedAs).c_str(), X_OK), 0);
  }
  EXPECT_FALSE(std::filesystem::is_symlink(work));
  EXPECT_EQ(Surroundings(), kUntouched);
  EXPECT_EQ(ReadBytes(folder / "beside/victim"), "untouched");
}

}  // namespace
}  // namespace quorvantis::test
