// SPDX-License-Identifier: MIT
#include "render/QuestionRow.h"

#include "model/QuestionKinds.h"
#include "model/document/ExamServices.h"
#include "render/AnswerBlocks.h"
#include "render/AttachmentItems.h"
#include "render/OralPart.h"
#include "render/Template.h"
#include "render/TextToHtml.h"

namespace quorvantis {
namespace {

constexpr Template<> kRowStart{
    uR"(<table cellspacing=0 cellpadding=0>\r\n)"
    uR"(<tr>\r\n)"};

constexpr Template<int, int> kPlainCell{
    uR"(<td width=30 bgcolor=#A8A4FF valign=top class=c2 align=center><label id=Subject%d><font color=ffffff>%d.</font></label><br></td>\r\n)"};
constexpr Template<int, int> kWrongCell{
    uR"(<td width=30 bgcolor=#A8A4FF valign=top class=c2 align=center><label id=Subject%d><font color=ffffff>%d.</font></label><br><font color=ff0000>X</font></td>\r\n)"};
constexpr Template<int, int> kRightCell{
    uR"(<td width=30 bgcolor=#A8A4FF valign=top class=c2 align=center><label id=Subject%d><font color=ffffff>%d.</font></label><br><font color=0000ff>O</font></td>\r\n)"};

constexpr Template<> kContentStart{uR"(<td width=770 bgcolor=#E6E6FF>\r\n)"};
constexpr Template<> kRowEnd{
    uR"(</td>\r\n)"
    uR"(</tr>\r\n)"
    uR"(</table>\r\n)"};

bool IsOralOnly(const RenderFlags& flags) {
  return flags == kResponsePage || flags == kKeyPage;
}

/// The parts of one row.
class Row {
 public:
  Row(const FrameSetExam& exam, int index, int studentNumber, const RenderFlags& flags)
      : exam_(exam),
        question_(exam.Question(index + 1)),
        index_(index),
        studentNumber_(studentNumber),
        flags_(flags),
        oral_(exam.pageRenderer, exam.Services()) {}

  std::u16string NumberCell() const {
    const int number = index_ + 1;
    if (flags_.marks && question_.responseValue == 1) return kRightCell(number, number);
    if (flags_.marks && question_.responseValue == 0 && IsWrong()) return kWrongCell(number, number);
    return kPlainCell(number, number);
  }

  std::u16string Content() const {
    return (flags_.question ? TextToHtml(question_.text) : std::u16string()) + Answer() + Attachments() +
           (IsOral() ? oral_.OralBlock(index_, studentNumber_, flags_) : std::u16string());
  }

 private:
  bool IsOral() const { return AnswerOf(question_.kind).oral; }

  bool IsWrong() const {
    return !IsOral() || oral_.OralMark(index_, studentNumber_, flags_) == OralMarkKind::Wrong;
  }

  std::u16string Answer() const {
    const AnswerBlocks blocks(question_, index_ + 1, flags_, exam_.pageRenderer.printLayout != 0,
                              exam_.Services().strings);
    switch (question_.kind) {
      case QuestionKind::Choice:
        return blocks.ChoiceBlock();
      case QuestionKind::FillIn:
        return blocks.FillInBlock();
      case QuestionKind::Essay:
        return blocks.EssayBlock();
      case QuestionKind::Oral:
        break;
    }
    return {};
  }

  std::u16string Attachments() const {
    std::u16string items;
    if (IsOralOnly(flags_)) return items;
    for (const std::u16string& path : question_.attachmentPaths) {
      if (!path.empty())
        items += AttachmentItem(exam_.Services(), exam_.PathOnPages(path), question_.oralFlag);
    }
    return items;
  }

  const FrameSetExam& exam_;
  const ExamQuestion& question_;
  int index_;
  int studentNumber_;
  RenderFlags flags_;
  OralPart oral_;
};

}  // namespace

std::u16string QuestionRow(const FrameSetExam& exam, int index, int studentNumber, const RenderFlags& flags) {
  const Row row(exam, index, studentNumber, flags);
  return kRowStart() + row.NumberCell() + kContentStart() + row.Content() + kRowEnd();
}

}  // namespace quorvantis
