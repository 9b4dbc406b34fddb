// SPDX-License-Identifier: MIT
#include "RenderTest.h"
#include "render/AnswerBlocks.h"
#include "render/QuestionRow.h"

namespace quorvantis::test {
namespace {

TEST(LettersToFlags, TakesTheLettersAToEInEitherCase) {
  EXPECT_EQ(LettersToFlags(u"Null"), LetterFlags{});
  EXPECT_EQ(LettersToFlags(u"EDAA"), (LetterFlags{true, false, false, true, true}));
  EXPECT_EQ(LettersToFlags(u"xb\u00E9"), (LetterFlags{false, true, false, false, false}));
}

class QuestionRowTest : public RenderTest {
 protected:
  std::string Row(const RenderFlags& flags) {
    return Utf16ToUtf8(QuestionRow(exam, exam.questionCount - 1, 0, flags));
  }
  /// The last question's row between the beginning of the content cell and its end.
  std::string Content(const RenderFlags& flags) {
    const std::string row = Row(flags);
    const std::string start = "<td width=770 bgcolor=#E6E6FF>\r\n";
    const std::string end = "</td>\r\n</tr>\r\n</table>\r\n";
    const std::size_t from = row.find(start) + start.size();
    EXPECT_TRUE(row.ends_with(end));
    return row.substr(from, row.size() - end.size() - from);
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

/// The golden pages show the rest.
TEST_F(QuestionRowTest, ShowsTheAnswersAsEachPageNeedsThem) {
  const std::string essay = "<font color=ff0000>mine<br>line<br></font>";
  const struct {
    QuestionKind kind;
    std::u16string response;
    int verdict;
    RenderFlags flags;
    std::string content;
  } rows[] = {
      {QuestionKind::Choice, u"BA", 0, kPrintPage, "<br>"},
      {QuestionKind::Choice, u"BA", 1, kResultPage,
       "<font color=\"blue\">[145 %s] : </font><br><font color=\"blue\">[146 %s] : AB</font><br><br>"},
      {QuestionKind::Choice, u"BA", 1, kResponsePage, "<font color=\"blue\">AB</font><br><br>"},
      {QuestionKind::Choice, u"BA", 7, kResponsePage, "<font color=\"red\">AB</font><br><br>"},
      {QuestionKind::FillIn, u"mine", 0, kPrintPage,
       "<input type=text id=q1a onkeyup=\"doAnalysisScore1()\";><br><br>"},
      {QuestionKind::FillIn, u"mine", 0, kResultPage,
       "<font color=\"blue\">[145 %s] : <br>[146 %s] : </font><font color=ff0000>mine</font><br><br>"},
      {QuestionKind::FillIn, u"mine", 1, kResponsePage, "<font color=\"blue\">mine</font><br><br>"},
      {QuestionKind::FillIn, u"mine", 0, kResponsePage, "<font color=ff0000>mine</font><br><br>"},
      {QuestionKind::Essay, u"mine\r\nline", 0, kPrintPage,
       "<textArea id=q1a width=2 cols=90 rows=7 onkeyup=\"doAnalysisScore1()\";></textarea>" + essay +
           "<br><br>"},
      {QuestionKind::Essay, u"mine\r\nline", 1, kResponsePage, essay + "<br><br>"},
  };
  for (const auto& row : rows) {
    exam.Reset();
    ExamQuestion& question = Add(row.kind);
    question.responseText = row.response;
    question.responseValue = row.verdict;
    EXPECT_EQ(Content(row.flags), row.content);
  }
}

TEST_F(QuestionRowTest, LetsStudentsChooseOptions) {
  Add(QuestionKind::Choice).options[4] = u"fifth";
  EXPECT_NE(Content({true, false, false, false, false})
                .find("<input type=checkbox id=q1e onclick=\"doAnalysisScore1()\"><font color=\"blue\">A. "),
            std::string::npos);
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
