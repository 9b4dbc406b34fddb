// SPDX-License-Identifier: MIT
#include "render/FramesetPage.h"

#include "model/document/ExamServices.h"
#include "render/AttachmentPane.h"
#include "render/PageFile.h"
#include "render/PageHead.h"
#include "render/PreviewPaths.h"

namespace quorvantis {
namespace {

constexpr Text kBaseName = u"SEE";

constexpr Template<Text, Text> kColumns{
    uR"(<FRAMESET COLS="50,50">\r\n)"
    uR"(<FRAME SRC="%s1.htm"  NOSIZE>\r\n)"
    uR"(<FRAME SRC="%s2.htm"  NOSIZE>\r\n)"
    uR"(</FRAMESET>\r\n)"};

}  // namespace

void WriteFrameset(FrameSetExam& exam, const std::filesystem::path& page) {
  PageFile(page, exam.Services().pages)
      .WriteUtf8(kHeadWithEncoding() + kColumns(kBaseName, kBaseName) + kPageEnd());
  exam.WriteQuestionPage(QuestionPage(exam));
  exam.pageRenderer.SetMediaSuppressed(0);
  exam.attachmentPageWriter.SetMediaSuppressed(0);
  AttachmentPane(exam).WriteAttachmentPane(AttachmentPanePage(exam));
}

}  // namespace quorvantis
