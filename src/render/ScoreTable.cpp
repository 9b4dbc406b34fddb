// SPDX-License-Identifier: MIT
#include "render/ScoreTable.h"

#include "platform/texts/ProgramTexts.h"
#include "render/Template.h"

namespace quorvantis {
namespace {

constexpr Template<Text> kHeading{uR"(<h4><font color="blue">%s</font></h4>\r\n)"};
constexpr Template<Text> kPrintHeading{uR"(<font color="blue">%s</font>\r\n)"};

constexpr Template<> kRangeStart{
    uR"(<table cellspacing=0 cellpadding=0>\r\n)"
    uR"(<tr>\r\n)"};
constexpr Template<Text, int, Text, int, Text, float> kRange{
    uR"(<td width=120  valign=top class=c2 align=left>%s%03d -</td> <td width=120  valign=top class=c2 align=left>%s%03d,</td><td width=120  valign=top class=c2 align=left>%s = <font color="blue">%1.2f</font></td>\r\n)"};
constexpr Template<> kRangeEnd{
    uR"(</tr>\r\n)"
    uR"(</table>\r\n)"};

constexpr Template<Text> kSameScores{uR"(%s\r\n)"};

std::u16string Ranges(const ExamPaper& exam, const StringTable& strings) {
  const std::u16string question = strings.Text(text_id::kQuestion);
  const std::u16string score = strings.Text(text_id::kScore);
  std::u16string html;
  for (std::size_t i = 0; i < kScoreRanges; ++i) {
    html += kRangeStart();
    if (exam.scoreFrom[i] != 0 && exam.scoreFrom[i] <= exam.questionCount) {
      html += kRange(question, exam.scoreFrom[i], question, exam.scoreTo[i], score, exam.scoreValue[i]);
    }
    html += kRangeEnd();
  }
  return html;
}

}  // namespace

std::u16string ScoreTable(const ExamPaper& exam, const StringTable& strings) {
  const bool printLayout = exam.pageRenderer.printLayout != 0;
  const std::u16string title = strings.Text(text_id::kScoreDistribution);
  std::u16string html = printLayout ? kPrintHeading(title) : kHeading(title);
  if (HasScoreRanges(exam.scoreMode)) html += Ranges(exam, strings);
  if (HasOneScore(exam.scoreMode)) html += kSameScores(strings.Text(text_id::kSameScores));
  if (!printLayout) html += u"<br>";
  return html;
}

}  // namespace quorvantis
