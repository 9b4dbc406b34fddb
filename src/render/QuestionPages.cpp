// SPDX-License-Identifier: MIT
#include "render/QuestionPages.h"

#include "model/document/ExamServices.h"
#include "platform/StringTable.h"
#include "platform/texts/ProgramTexts.h"
#include "render/PageHead.h"
#include "render/QuestionRow.h"
#include "render/ScoreTable.h"

namespace quorvantis {
namespace {

/// Sets the status text that PreviewWindow waits for.
constexpr Template<Text> kFinishButton{
    uR"(<center><input type=BUTTON value="%s" onclick=window.status="ExamFinish"></center>\r\n)"};

constexpr Template<Text, float> kScore{
    uR"(<center><h1>%s <font color="blue">%1.2f</font></h1><br></center>\r\n)"};

constexpr Template<Text> kTitle{uR"(<center>%s</center>\r\n)"};
constexpr Template<Text> kPrintButton{
    uR"x(<center><input type=BUTTON value="%s" onclick="doFinish();"></center>\r\n)x"};

/// Deliberate: the print page ends its last lines with LF alone, since the cut file has to keep its length.
constexpr Template<> kPrintEnd{
    uR"(</BODY>\n)"
    uR"(</HTML>\n)"};

std::u16string Label(const FrameSetExam& exam, int text) {
  return exam.Services().strings.Text(text);
}

std::u16string ScoresAndRows(const FrameSetExam& exam, const RenderFlags& flags) {
  std::u16string html = ScoreTable(exam, exam.Services().strings);
  for (int index = 0; index < exam.questionCount; ++index) html += QuestionRow(exam, index, 0, flags);
  return html;
}

}  // namespace

std::u16string ComposeQuestionPage(const FrameSetExam& exam) {
  std::u16string page = kHeadWithEncoding() + kBodyStart();
  page += ScoresAndRows(exam, kPreviewPage);
  if (exam.hostMode == 1) page += kFinishButton(Label(exam, text_id::kFinishExam));
  return page + kBodyEnd() + kPageEnd();
}

std::u16string ComposeResultPage(const FrameSetExam& exam) {
  std::u16string page = kHeadWithoutEncoding() + kBodyStart();
  page += kScore(Label(exam, text_id::kYourScoreIs), exam.resultScore);
  page += ScoresAndRows(exam, kResultPage);
  if (exam.resultPageOption == 0) page += kFinishButton(Label(exam, text_id::kFinishExam));
  return page + kBodyEnd() + kPageEnd();
}

std::u16string ComposePrintPage(const FrameSetExam& exam) {
  std::u16string page = kHeadWithoutEncoding() + kBodyStart() + kTitle(exam.title);
  page += ScoresAndRows(exam, kPrintPage);
  page += kPrintButton(Label(exam, text_id::kFinishExam));
  return page + kPrintEnd();
}

}  // namespace quorvantis
