// SPDX-License-Identifier: MIT
#include "RenderTest.h"
#include "render/AnswerBlocks.h"
#include "render/QuestionRow.h"

namespace quorvantis::test {
namespace {

TEST(LettersToFlags, TakesTheLettersAToEInEitherCase) {
  const struct {
    std::u16string_view letters;
    LetterFlags flags;
  } rows[] = {
      {u"", {}},
      {u"null", {}},
      {u"Null", {}},
      {u"ac", {true, false, true, false, false}},
      {u"EDA", {true, false, false, true, true}},
      {u"aa", {true, false, false, false, false}},
      {u"xb\u00E9", {false, true, false, false, false}},
  };
  for (const auto& row : rows) EXPECT_EQ(LettersToFlags(row.letters), row.flags);
}

class QuestionRowTest : public RenderTest {
 protected:
  /// The last question's row between the beginning of the content cell and its end.
  std::string Content(const RenderFlags& flags) {
    const std::string row = Row(flags);
    const std::string start = "<td width=770 bgcolor=#E6E6FF>\r\n";
    const std::string end = "</td>\r\n</tr>\r\n</table>\r\n";
    const std::size_t from = row.find(start) + start.size();
    EXPECT_TRUE(row.ends_with(end));
    return row.substr(from, row.size() - end.size() - from);
  }
  std::string Row(const RenderFlags& flags) {
    return Utf16ToUtf8(QuestionRow(exam, exam.questionCount - 1, 0, flags));
  }

  /// The same question on every page, with the answer judged so.
  std::string ContentJudged(int verdict, const RenderFlags& flags) {
    exam.Question(1).responseValue = verdict;
    return Content(flags);
  }
};

TEST_F(QuestionRowTest, MarksTheNumber) {
  const std::string start =
      "<table cellspacing=0 cellpadding=0>\r\n<tr>\r\n<td width=30 bgcolor=#A8A4FF valign=top class=c2 "
      "align=center><label id=Subject7><font color=ffffff>7.</font></label><br>";
  const std::string right = "<font color=0000ff>O</font>";
  const std::string wrong = "<font color=ff0000>X</font>";
  exam.questionCount = 7;
  const struct {
    RenderFlags flags;
    int verdict;
    std::string mark;
  } rows[] = {{kPreviewPage, 1, ""}, {kPreviewPage, 0, ""}, {kResultPage, 1, right},  {kResultPage, 0, wrong},
              {kResultPage, 2, ""},  {kResultPage, -1, ""}, {kResponsePage, 0, wrong}};
  for (const auto& row : rows) {
    exam.Question(7).responseValue = row.verdict;
    EXPECT_TRUE(Row(row.flags).starts_with(start + row.mark + "</td>\r\n")) << row.verdict;
  }
}

TEST_F(QuestionRowTest, LettersTheShownOptionsWithoutGaps) {
  ExamQuestion& question = Add(QuestionKind::Choice, u"Q");
  question.options = {u"first", u"", u"third\r\nline", u"", u"fifth"};
  question.answerLetters = u"ec";
  const std::string table = "<table cellspacing=0 cellpadding=0><tr><td valign=top >";
  EXPECT_EQ(Content(kPreviewPage),
            "Q<br>" + table +
                "<input type=checkbox id=q1a onclick=\"doAnalysisScore1()\" disabled><font color=\"blue\">A. "
                "</font></td><td>first<br></td></tr></table>\r\n" +
                table +
                "<input type=checkbox id=q1c checked=true disabled><font color=\"blue\">B. </font></td>"
                "<td>third<br>line<br></td></tr></table>\n" +
                table +
                "<input type=checkbox id=q1e checked=true disabled><font color=\"blue\">C. </font></td>"
                "<td>fifth<br></td></tr></table>\n"
                "<font color=\"blue\">[145 %s] : CE</font><br><br>");
  EXPECT_NE(Content({true, false, false, false, false})
                .find("<input type=checkbox id=q1e onclick=\"doAnalysisScore1()\"><font color=\"blue\">C. "),
            std::string::npos);
  exam.pageRenderer.SetPrintLayout(1);
  EXPECT_EQ(
      Content(kPrintPage),
      "Q<br>" + table +
          "<label for=q1a> <font color=\"blue\">A. </font></td><td>first<br></td></tr></table>\r\n" + table +
          "<label for=q1c><font color=\"blue\">B. </font></td><td>third<br>line<br></td></tr></table>\n" +
          table + "<label for=q1e><font color=\"blue\">C. </font></td><td>fifth<br></td></tr></table>\n");
}

TEST_F(QuestionRowTest, ShowsTheAnswersOfAChoice) {
  ExamQuestion& question = Add(QuestionKind::Choice);
  question.answerLetters = u"ac";
  question.responseText = u"BA";
  const std::string key = "<font color=\"blue\">[145 %s] : AC</font><br>";
  EXPECT_EQ(ContentJudged(0, kPrintPage), "<br>");
  EXPECT_EQ(ContentJudged(0, kPreviewPage), key + "<br>");
  EXPECT_EQ(ContentJudged(1, kResultPage), key + "<font color=\"blue\">[146 %s] : AB</font><br><br>");
  EXPECT_EQ(ContentJudged(0, kResultPage),
            key + "<font color=\"blue\">[146 %s] : </font><font color=\"red\">AB</font><br><br>");
  EXPECT_EQ(ContentJudged(1, kResponsePage), "<font color=\"blue\">AB</font><br><br>");
  EXPECT_EQ(ContentJudged(7, kResponsePage), "<font color=\"red\">AB</font><br><br>");
}

TEST_F(QuestionRowTest, ShowsTheAnswersOfAFillIn) {
  ExamQuestion& question = Add(QuestionKind::FillIn);
  question.answerText = u"red<@>blue<@><@";
  question.responseText = u"mine";
  const std::string key = "<font color=\"blue\">[145 %s] : red , blue , <@";
  EXPECT_EQ(ContentJudged(0, kPrintPage), "<input type=text id=q1a onkeyup=\"doAnalysisScore1()\";><br><br>");
  EXPECT_EQ(ContentJudged(0, kPreviewPage), key + "</font><br><br>");
  EXPECT_EQ(ContentJudged(1, kResultPage), key + "<br>[146 %s] : mine</font><br><br>");
  EXPECT_EQ(ContentJudged(0, kResultPage),
            key + "<br>[146 %s] : </font><font color=ff0000>mine</font><br><br>");
  EXPECT_EQ(ContentJudged(1, kResponsePage), "<font color=\"blue\">mine</font><br><br>");
  EXPECT_EQ(ContentJudged(0, kResponsePage), "<font color=ff0000>mine</font><br><br>");
  exam.pageRenderer.SetPrintLayout(1);
  EXPECT_EQ(Content(kPrintPage), "<label for=Q1a><font color=\"blue\">");
}

TEST_F(QuestionRowTest, ShowsTheAnswersOfAnEssay) {
  ExamQuestion& question = Add(QuestionKind::Essay);
  question.answerText = u"key\r\nline";
  question.essayAnswer = u"not shown";
  question.responseText = u"mine\r\nline";
  const std::string key = "<font color=\"blue\">[145 %s] :</font><br><font color=\"black\"> key";
  const std::string mine = "<font color=ff0000>mine<br>line<br></font>";
  EXPECT_EQ(ContentJudged(0, kPrintPage),
            "<textArea id=q1a width=2 cols=90 rows=7 onkeyup=\"doAnalysisScore1()\";></textarea>" + mine +
                "<br><br>");
  EXPECT_EQ(ContentJudged(0, kPreviewPage),
            key + "\r\nline</font><br><br>");  // the key alone keeps its line ends
  EXPECT_EQ(ContentJudged(1, kResultPage),
            key + "<br>line<br></font><font color=0000ff><br>[146 %s]  :</font><br>" + mine + "<br><br>");
  EXPECT_EQ(ContentJudged(1, kResponsePage), mine + "<br><br>");
  exam.pageRenderer.SetPrintLayout(1);
  EXPECT_EQ(Content(kPrintPage), "<label for=Q1a><font color=\"blue\">" + mine);
}

TEST_F(QuestionRowTest, ShowsAttachmentsButForTwoPagesOfOtherHosts) {
  ExamQuestion& question = Add(static_cast<QuestionKind>(9));
  question.attachmentPaths[1] = u"/pa/path/a.gif";
  question.attachmentPaths[9] = u"~tt/b.gif";
  const std::string items = "<img src=\"/path/a.gif\" ></img><br><img src=\"~tt/b.gif\" ></img><br>";
  for (const RenderFlags& flags : {kPreviewPage, kResultPage, kPrintPage, RenderFlags{}}) {
    EXPECT_EQ(Content(flags), items);
  }
  for (const RenderFlags& flags : {kKeyPage, kResponsePage}) EXPECT_EQ(Content(flags), "");
  exam.PrefixAttachmentPaths(1);
  EXPECT_NE(Content(kPreviewPage).find("src=\"/pa/path/a.gif\""), std::string::npos);
}

}  // namespace
}  // namespace quorvantis::test
