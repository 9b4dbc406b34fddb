// SPDX-License-Identifier: MIT
#include "render/sheets/AnswerSheetPage.h"

#include "model/AnswerLetters.h"
#include "model/QuestionKinds.h"
#include "platform/texts/SheetTexts.h"
#include "render/Template.h"
#include "render/sheets/SheetParts.h"

#include <vector>

namespace quorvantis {
namespace {

constexpr Template<Text> kTen{uR"(<div class="ten">%s</div>)"};
constexpr Template<int, Text> kChoiceLine{uR"(<div class="choice"><b>%d</b>%s</div>\n)"};
constexpr Template<char16_t> kBox{uR"(<i>%c</i>)"};
constexpr Template<int> kFillInLine{
    uR"(<div class="written"><div class="number">%d.</div><div class="line"></div></div>)"};
constexpr Template<int, Text> kEssaySpace{
    uR"(<div class="written space"><div class="number">%d.</div><div>%s</div></div>)"};
constexpr Template<> kRuledLine{uR"(<div class="line"></div>)"};
constexpr Template<Text> kInstruction{uR"(<div class="note"><bdi>%s</bdi></div>)"};

constexpr std::size_t kQuestionsOfABlock = 10;
constexpr int kLinesOfAnEssay = 8;

std::u16string ChoiceBlocks(const std::vector<int>& numbers) {
  std::u16string boxes;
  for (std::size_t i = 0; i < kOptionCount; ++i) boxes += kBox(OptionLetter(i));
  std::u16string blocks;
  std::u16string lines;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    lines += kChoiceLine(numbers[i], boxes);
    if ((i + 1) % kQuestionsOfABlock != 0 && i + 1 != numbers.size()) continue;
    blocks += kTen(lines);
    lines.clear();
  }
  return blocks;
}

std::u16string EssaySpace(int number) {
  std::u16string lines;
  for (int i = 0; i < kLinesOfAnEssay; ++i) lines += kRuledLine();
  return kEssaySpace(number, lines);
}

}  // namespace

std::u16string ComposeAnswerSheet(const FrameSetExam& exam, const SheetRequest& request) {
  std::vector<int> choices;
  std::u16string fillIns;
  std::u16string essays;
  for (int number = 1; number <= exam.questionCount; ++number) {
    const AnswerParts parts = AnswerOf(exam.Question(number).kind);
    if (parts.options) choices.push_back(number);
    if (parts.fillIn) fillIns += Row(kFillInLine(number));
    if (parts.essay) essays += Row(EssaySpace(number));
  }
  std::u16string page = Heading(exam, request, Caption(exam, text_id::kSheetAnswerSheet), NameLines::Wanted);
  if (!choices.empty())
    page += Row(kInstruction(Caption(exam, text_id::kSheetCross))) + Row(ChoiceBlocks(choices));
  return SheetPage(exam, request, page + fillIns + essays);
}

}  // namespace quorvantis
