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
    choice.options = {u"one", u"two", u"", u"four", u""};
    choice.answerLetters = u"bd";
    choice.responseText = u"b";
    choice.attachmentPaths[0] = u"/ap/app/TEMP/ExamPreview/~tt/a.jpg";
    ExamQuestion& fillIn = Add(QuestionKind::FillIn, u"Colours");
    fillIn.answerText = u"red<@>blue";
    fillIn.responseText = u"red";
    fillIn.responseValue = 1;
    ExamQuestion& essay = Add(QuestionKind::Essay, u"Tell \U0001F600");
    essay.essayAnswer = u"not on any page";
    essay.responseText = u"once\r\nupon";
    Add(QuestionKind::Oral, u"Speak").oralFlag = 1;
  }
};

TEST_F(QuestionPagesTest, PreviewShowsTheKeys) {
  FillExam();
  exam.WritePreview(folder / "SEE.htm");
  ExpectGolden("preview.htm", Page(folder / "SEE.htm"));
  EXPECT_EQ(ReadBytes(folder / "SEE.htm"), Page(folder / "SEE.htm") + '\0');
  EXPECT_TRUE(fs::is_empty(pages));
  exam.hostMode = 0;
  exam.WriteQuestionPage(folder / "SEE.htm");
  EXPECT_EQ(Page(folder / "SEE.htm").find("ExamFinish"), std::string::npos);
}

TEST_F(QuestionPagesTest, ResultShowsMarksAndScore) {
  FillExam();
  exam.locationMode = 0;
  exam.resultScore = 7.5F;
  exam.WritePreview(folder / "result.htm");
  ExpectGolden("result.htm", Page(folder / "result.htm"));
  EXPECT_EQ(fs::file_size(folder / "result.htm"), world.pages.pages[folder / "result.htm"].size() + 1);
  exam.resultPageOption = 0;
  exam.WriteResultPage(folder / "result.htm");
  EXPECT_TRUE(
      Page(folder / "result.htm")
          .ends_with("<center><input type=BUTTON value=\"[141 %s]\" onclick=window.status=\"ExamFinish\">"
                     "</center>\r\n</BODY>\r\n</HTML>\r\n"));
}

TEST_F(QuestionPagesTest, PrintIsAPaper) {
  FillExam();
  for (ExamQuestion& question : exam.questions) question.responseText.clear();
  exam.WritePrintPage(folder / "print.htm");
  ExpectGolden("print.htm", Page(folder / "print.htm"));
  EXPECT_EQ(fs::file_size(folder / "print.htm"), world.pages.pages[folder / "print.htm"].size() + 1);
  EXPECT_EQ(exam.pageRenderer.printLayout, 0);
}

TEST_F(QuestionPagesTest, HaveNoRowsWithoutQuestions) {
  exam.WritePrintPage(folder / "print.htm");
  EXPECT_EQ(Page(folder / "print.htm"),
            "<HTML>\r\n<HEAD>\r\n<TITLE></TITLE>\r\n</HEAD>\r\n<BODY>\r\n<center></center>\r\n"
            "<font color=\"blue\">[114 %s]</font>\r\n[117 %s]\r\n"
            "<center><input type=BUTTON value=\"[141 %s]\" "
            "onclick=\"doFinish();\"></center>\r\n</BODY>\n</HTML>\n");
}

TEST_F(QuestionPagesTest, ScoreTableKeepsATableForEachRange) {
  exam.scoreMode = ScoreMode::Custom;
  exam.questionCount = 25;
  exam.scoreFrom[1] = 0;
  exam.scoreFrom[4] = -3;
  const std::string table = Utf16ToUtf8(ScoreTable(exam, world.strings));
  EXPECT_EQ(CountOf("<table cellspacing=0 cellpadding=0>\r\n<tr>\r\n", table), 10);
  EXPECT_EQ(
      CountOf("align=left>[115 %s]001 -</td> <td width=120  valign=top class=c2 align=left>[115 %s]010,</td>"
              "<td width=120  valign=top class=c2 align=left>[116 %s] = <font "
              "color=\"blue\">1.00</font></td>\r\n",
              table),
      1);
  EXPECT_EQ(CountOf("[115 %s]021 -", table), 1);
  EXPECT_EQ(CountOf("[115 %s]-03 -", table), 1);
  EXPECT_EQ(CountOf("[116 %s]", table), 3);
  exam.scoreMode = static_cast<ScoreMode>(2);
  EXPECT_EQ(ScoreTable(exam, world.strings), u"<h4><font color=\"blue\">[114 %s]</font></h4>\r\n<br>");
}

}  // namespace
}  // namespace quorvantis::test
