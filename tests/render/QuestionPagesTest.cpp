// SPDX-License-Identifier: MIT
#include "RenderTest.h"
#include "render/ScoreTable.h"

namespace quorvantis::test {
namespace {

class QuestionPagesTest : public RenderTest {
 protected:
  /// One question of each kind.
  void FillExam() {
    exam.title = u"T\u00EFtle";
    exam.scoreMode = ScoreMode::Custom;
    exam.scoreTo[0] = 3;
    exam.scoreValue[0] = 7.005F;
    ExamQuestion& choice = Add(QuestionKind::Choice, u"Which <b>two</b>?\r\nTick.");
    choice.options = {u"one", u"two", u"", u"four\r\nlines", u""};
    choice.answerLetters = u"bd";
    choice.responseText = u"b";
    choice.attachmentPaths[0] = u"/ap/app/TEMP/ExamPreview/~tt/a.jpg";
    ExamQuestion& fillIn = Add(QuestionKind::FillIn, u"Colours");
    fillIn.answerText = u"red<@>blue<@><@";
    fillIn.responseText = u"red";
    fillIn.responseValue = 1;
    ExamQuestion& essay = Add(QuestionKind::Essay, u"Tell \U0001F600");
    essay.answerText = u"key\r\nline";
    essay.essayAnswer = u"not on any page";
    essay.responseText = u"once\r\nupon";
    Add(QuestionKind::Oral, u"Speak").oralFlag = 1;
  }

  const fs::path page = folder / "page.htm";
};

TEST_F(QuestionPagesTest, PreviewShowsTheKeys) {
  FillExam();
  exam.WritePreview(page);
  ExpectGolden("preview.htm", Page(page));
  EXPECT_EQ(ReadBytes(page), Page(page) + '\0');
  EXPECT_TRUE(fs::is_empty(pages));
  exam.hostMode = 0;
  exam.WriteQuestionPage(page);
  EXPECT_EQ(Page(page).find("ExamFinish"), std::string::npos);
}

TEST_F(QuestionPagesTest, ResultShowsMarksAndScore) {
  FillExam();
  exam.locationMode = 0;
  exam.resultScore = 7.5F;
  exam.WritePreview(page);
  ExpectGolden("result.htm", Page(page));
  EXPECT_EQ(fs::file_size(page), world.pages.pages[page].size() + 1);
  exam.resultPageOption = 0;
  exam.WriteResultPage(page);
  EXPECT_TRUE(
      Page(page).ends_with("<center><input type=BUTTON value=\"[141 %s]\" "
                           "onclick=window.status=\"ExamFinish\"></center>\r\n</BODY>\r\n</HTML>\r\n"));
}

TEST_F(QuestionPagesTest, PrintIsAPaper) {
  FillExam();
  for (ExamQuestion& question : exam.questions) question.responseText.clear();
  exam.WritePrintPage(page);
  ExpectGolden("print.htm", Page(page));
  EXPECT_EQ(fs::file_size(page), world.pages.pages[page].size() + 1);
  EXPECT_EQ(exam.pageRenderer.printLayout, 0);
}

TEST_F(QuestionPagesTest, ScoreTableKeepsATableForEachRange) {
  exam.scoreMode = ScoreMode::Custom;
  exam.questionCount = 25;
  exam.scoreFrom[1] = 0;
  exam.scoreFrom[4] = -3;
  const std::string table = Utf16ToUtf8(ScoreTable(exam, world.strings));
  EXPECT_EQ(CountOf("<table cellspacing=0 cellpadding=0>\r\n<tr>\r\n", table), 10);
  for (const char* first : {"[115 %s]001 -", "[115 %s]021 -", "[115 %s]-03 -"}) {
    EXPECT_EQ(CountOf(first, table), 1) << first;
  }
  EXPECT_EQ(CountOf("[116 %s]", table), 3);
  exam.scoreMode = static_cast<ScoreMode>(2);
  EXPECT_EQ(ScoreTable(exam, world.strings), u"<h4><font color=\"blue\">[114 %s]</font></h4>\r\n<br>");
}

}  // namespace
}  // namespace quorvantis::test
