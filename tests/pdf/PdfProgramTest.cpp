// SPDX-License-Identifier: MIT
// The real program, started as others start it.
#include "platform/programs/PdfProgram.h"
#include "platform/programs/PopplerPdfText.h"
#include "render/RenderTest.h"
#include "text/ComparableText.h"
#include "text/NumberText.h"
#include "versions/verify/PaperComparison.h"

#include <algorithm>

namespace quorvantis::test {
namespace {

constexpr std::u16string_view kWords[] = {u"photosynthesis",
                                          u"office",
                                          u"affinity",
                                          u"Stra\u00DFe",
                                          u"na\u00EFve",
                                          u"x\u00B2",
                                          u"\u4E00\u4E8C\u4E09\u9898",
                                          u"\u6C34\u706B\u571F",
                                          u"\u0627\u0644\u0625\u062C\u0627\u0628\u0629",
                                          u"\u0644\u0627",
                                          u"\u0645\u0635\u0631",
                                          u"(a)",
                                          u"\u05E9\u05DC\u05D5\u05DD",
                                          u"5&6"};

class PdfProgramTest : public RenderTest {
 protected:
  fs::path Save(const char* name) {
    fs::path file = folder / name;
    exam.WriteExamFile(file);
    return file;
  }

  /// A hundred questions of words in several scripts, some between tags.
  std::vector<std::u16string> FillExam() {
    std::vector<std::u16string> words;
    const auto next = [&words] {
      words.emplace_back(kWords[words.size() % std::size(kWords)]);
      return words.back();
    };
    for (int i = 0; i < 100; ++i) {
      ExamQuestion& question = Add(QuestionKind::Choice, next() + u" " + next() + u"\r\n<b>" + next());
      for (std::u16string& option : question.options) option = next() + u"</div> " + next();
      question.answerLetters = u"b";
    }
    return words;
  }

  static std::string SheetName(Sheet sheet) { return std::to_string(static_cast<int>(sheet)); }

  std::vector<std::u16string> PagesOf(const fs::path& pdf) {
    PdfPages text = PopplerPdfText().Read(pdf);
    EXPECT_EQ(text.problem.value_or(""), "");
    return text.pages;
  }

  InterruptedProgress progress;
  PdfProgram program{QUORVANTIS_PDF, 0};
};

TEST_F(PdfProgramTest, EveryWordOfTheExamIsInTheFile) {
  const std::vector<std::u16string> words = FillExam();
  const PaperJob job{Save("exam.exm"), folder / "out.pdf", Sheet::Paper, u"B", u"c0de"};
  ASSERT_EQ(program.Print({&job, 1}, progress), std::nullopt);
  std::u16string all;
  for (const std::u16string& page : PagesOf(job.target)) {
    EXPECT_NE(ComparableText(page).find(u"c0de"), std::u16string::npos);  // at the foot of every page
    all += page;
  }
  const std::u16string comparable = ComparableText(all);
  for (const std::u16string& word : words)
    EXPECT_NE(comparable.find(ComparableText(word)), comparable.npos) << Utf16ToUtf8(word);
  EXPECT_EQ(CountOf(Utf16ToUtf8(ComparableText(u"\u4E00\u4E8C\u4E09\u9898")), Utf16ToUtf8(comparable)),
            std::ranges::count(words, std::u16string(u"\u4E00\u4E8C\u4E09\u9898")));
}

TEST_F(PdfProgramTest, SeveralSheetsAreMadeInOneStartAndFilledUp) {
  Add(QuestionKind::Choice, u"only").options = {u"x", u"y"};
  const fs::path file = Save("exam.exm");
  for (int i = 0; i < 60; ++i) Add(QuestionKind::Choice, u"more").options = {u"x", u"y"};
  const fs::path longer = Save("longer.exm");
  const std::vector<PaperJob> jobs{{file, folder / "a.pdf", Sheet::Paper, u"A", u"", false, true},
                                   {longer, folder / "b.pdf", Sheet::Paper, u"B", u"", false, true},
                                   {file, folder / "k.pdf", Sheet::Key, u"A"},
                                   {file, folder / "s.pdf", Sheet::Answers, u"A", u"", true}};
  ASSERT_EQ(program.Print(jobs, progress), std::nullopt);
  const std::vector<std::u16string> papers = PagesOf(folder / "a.pdf");
  const std::size_t most = PagesOf(folder / "b.pdf").size();
  ASSERT_GT(most, 1U);
  ASSERT_EQ(papers.size(), most);
  const std::u16string count = FormatInteger(static_cast<std::int64_t>(most));
  EXPECT_EQ(ComparableText(papers.back()), ComparableText(count + u"/" + count));
  EXPECT_EQ(program.PageCount(folder / "k.pdf"), 1);
  EXPECT_EQ(program.PageCount(folder / "s.pdf"), 1);
  EXPECT_EQ(program.PageCount(file), std::nullopt);
}

/// Papers of another exam, with the right name and code on every page.
TEST_F(PdfProgramTest, PapersThatSayAnythingElseAreFound) {
  for (int i = 1; i <= 12; ++i) {
    const std::u16string number = FormatInteger(i);
    ExamQuestion& question = Add(QuestionKind::Choice, u"Which <b>one</b> is number " + number + u"?");
    question.options = {u"first " + number, u"second " + number, u"", u"fourth " + number};
    question.answerLetters = u"ad";
  }
  Add(QuestionKind::FillIn, u"The capital is ____.").answerText = u"Paris";
  struct Row {
    void (*change)(FrameSetExam&);
    bool isOnPaper;
    bool isOnSolutions;
    bool isOnKey;
  };
  constexpr Row kRows[] = {
      {[](FrameSetExam&) {}, false, false, false},
      {[](FrameSetExam& other) { other.Question(5).text = u"Which <b>one</b> is not number 5?"; }, true, true,
       false},
      {[](FrameSetExam& other) { other.Question(7).options[1] = u"second 8"; }, true, true, false},
      {[](FrameSetExam& other) { std::swap(other.Question(3).options[0], other.Question(3).options[3]); },
       true, true, false},
      {[](FrameSetExam& other) { std::swap(other.Question(4), other.Question(5)); }, true, true, false},
      {[](FrameSetExam& other) { other.Question(13) = ExamQuestion(); }, true, true, true},
      {[](FrameSetExam& other) { other.Question(9).answerLetters = u"a"; }, false, true, true},
  };
  const ExamPaper original = exam;
  std::vector<PaperJob> jobs;
  for (const Row& row : kRows) {
    static_cast<ExamPaper&>(exam) = original;
    row.change(exam);
    exam.CountQuestions();
    const std::string name = std::to_string(jobs.size());
    const fs::path file = Save((name + ".exm").c_str());
    for (const Sheet sheet : {Sheet::Paper, Sheet::Solutions, Sheet::Key})
      jobs.push_back({file, folder / (name + SheetName(sheet) + ".pdf"), sheet, u"A", u"1a2b3c4d"});
  }
  ASSERT_EQ(program.Print(jobs, progress), std::nullopt);
  static_cast<ExamPaper&>(exam) = original;
  exam.CountQuestions();
  const NumberStrings strings;
  auto job = jobs.begin();
  for (const Row& row : kRows) {
    for (const bool isFound : {row.isOnPaper, row.isOnSolutions, row.isOnKey}) {
      const PdfPages printed = PopplerPdfText().Read(job->target);
      const auto found = ComparePaper(exam, job->sheet, {u"A", u"1a2b3c4d"}, printed, strings);
      EXPECT_EQ(!found.faults.empty(), isFound) << job->target;
      EXPECT_TRUE(found.notCompared.empty()) << job->target;
      ++job;
    }
  }
}

TEST_F(PdfProgramTest, WhatFailsIsToldAndLeavesTheOldFile) {
  const fs::path target = WriteBytes(folder / "old.pdf", "old");
  const PaperJob missing{folder / "none.exm", target};
  EXPECT_NE(program.Print({&missing, 1}, progress).value_or("").find("none.exm"), std::string::npos);
  EXPECT_EQ(ReadBytes(target), "old");
  Add(QuestionKind::Choice, u"only");
  const PaperJob nowhere{Save("exam.exm"), folder / "no folder" / "x.pdf"};
  EXPECT_NE(program.Print({&nowhere, 1}, progress).value_or("").find("no folder"), std::string::npos);
  PdfProgram absent({}, 0);
  EXPECT_NE(absent.Print({&nowhere, 1}, progress).value_or("").find("not installed"), std::string::npos);
  EXPECT_TRUE(PopplerPdfText().Read(target).problem);
}

}  // namespace
}  // namespace quorvantis::test
