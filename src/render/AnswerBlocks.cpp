// SPDX-License-Identifier: MIT
#include "render/AnswerBlocks.h"

#include "model/AnswerLetters.h"
#include "model/FillInAnswers.h"
#include "platform/texts/ProgramTexts.h"
#include "render/Template.h"
#include "render/TextToHtml.h"
#include "text/AsciiCase.h"

namespace quorvantis {
namespace {

// Choice. Where "%d%c" stands, the letter after the question number is that of the option's place, a to e.
constexpr Template<> kOptionStart{uR"(<table cellspacing=0 cellpadding=0><tr>)"};
constexpr Template<int, char16_t, char16_t> kLabelOfA{
    uR"(<td valign=top ><label for=q%d%c> <font color="blue">%c. </font></td>)"};
constexpr Template<int, char16_t, char16_t> kLabel{
    uR"(<td valign=top ><label for=q%d%c><font color="blue">%c. </font></td>)"};
constexpr Template<int, char16_t, char16_t> kKeyBox{
    uR"(<td valign=top ><input type=checkbox id=q%d%c checked=true disabled><font color="blue">%c. </font></td>)"};
constexpr Template<int, char16_t, int, char16_t> kDisabledBox{
    uR"x(<td valign=top ><input type=checkbox id=q%d%c onclick="doAnalysisScore%d()" disabled><font color="blue">%c. </font></td>)x"};
constexpr Template<int, char16_t, int, char16_t> kBox{
    uR"x(<td valign=top ><input type=checkbox id=q%d%c onclick="doAnalysisScore%d()"><font color="blue">%c. </font></td>)x"};
constexpr Template<Text> kOptionText{uR"(<td>%s</td>)"};
constexpr Template<> kOptionEndOfA{uR"(</tr></table>\r\n)"};
constexpr Template<> kOptionEnd{uR"(</tr></table>\n)"};

constexpr Template<Text, Text> kAnswerLine{uR"(<font color="blue">%s : %s</font><br>)"};
constexpr Template<Text, Text> kWrongAnswerLine{
    uR"(<font color="blue">%s : </font><font color="red">%s</font><br>)"};
constexpr Template<Text> kAnswerOnly{uR"(<font color="blue">%s</font><br>)"};
constexpr Template<Text> kWrongAnswerOnly{uR"(<font color="red">%s</font><br>)"};

// Fill-in and essay. Deliberate: the label of the print layout is not closed, so the answer has its colour.
constexpr Template<int> kOpenLabel{uR"(<label for=Q%da><font color="blue">)"};

constexpr Template<int, int> kFillInInput{uR"x(<input type=text id=q%da onkeyup="doAnalysisScore%d()";>)x"};
constexpr Template<Text, Text, Text, Text> kFillInKeyAndAnswer{
    uR"(<font color="blue">%s : %s<br>%s : %s</font>)"};
constexpr Template<Text, Text, Text, Text> kFillInKeyAndWrongAnswer{
    uR"(<font color="blue">%s : %s<br>%s : </font><font color=ff0000>%s</font>)"};
constexpr Template<Text, Text> kFillInKey{uR"(<font color="blue">%s : %s</font>)"};
constexpr Template<Text> kFillInAnswer{uR"(<font color="blue">%s</font>)"};
constexpr Template<Text> kFillInWrongAnswer{uR"(<font color=ff0000>%s</font>)"};

constexpr Template<int, int> kEssayInput{
    uR"x(<textArea id=q%da width=2 cols=90 rows=7 onkeyup="doAnalysisScore%d()";></textarea>)x"};
constexpr Template<Text> kEssayAnswer{uR"(<font color=ff0000>%s</font>)"};
constexpr Template<Text, Text, Text, Text> kEssayKeyAndAnswer{
    uR"(<font color="blue">%s :</font><br><font color="black"> %s</font><font color=0000ff><br>%s  :</font><br><font color=ff0000>%s</font>)"};
constexpr Template<Text, Text> kEssayKey{
    uR"(<font color="blue">%s :</font><br><font color="black"> %s</font>)"};

std::u16string Capitals(const LetterFlags& letters) {
  std::u16string capitals;
  for (std::size_t place = 0; place < letters.size(); ++place) {
    if (letters[place]) capitals += OptionLetter(place);
  }
  return capitals;
}

}  // namespace

LetterFlags LettersToFlags(std::u16string_view text) {
  LetterFlags flags{};
  if (text == u"null") return flags;
  for (const char16_t unit : text) {
    if (const auto option = OptionIndex(unit)) flags[*option] = true;
  }
  return flags;
}

AnswerBlocks::AnswerBlocks(const ExamQuestion& question, int number, const RenderFlags& flags,
                           bool printLayout, const StringTable& strings)
    : question_(question),
      number_(number),
      flags_(flags),
      printLayout_(printLayout),
      correctAnswerIs_(strings.Text(text_id::kCorrectAnswerIs)),
      yourAnswerIs_(strings.Text(text_id::kYourAnswerIs)),
      key_(LettersToFlags(question.answerLetters)) {}

/// Shown options are lettered without gaps, while identifiers keep the letter of the option's place: the
/// student sees a list, but the place is scored.
std::u16string AnswerBlocks::ChoiceBlock() const {
  std::u16string html;
  char16_t letter = OptionLetter(0);
  for (std::size_t option = 0; option < kOptionCount && flags_.question; ++option) {
    if (question_.options[option].empty()) continue;
    html +=
        kOptionStart() + OptionCell(option, letter++) + kOptionText(TextToHtml(question_.options[option]));
    html += option == 0 ? kOptionEndOfA() : kOptionEnd();
  }
  html += ChoiceAnswerLines();
  if (!printLayout_) html += u"<br>";
  return html;
}

std::u16string AnswerBlocks::OptionCell(std::size_t option, char16_t letter) const {
  const char16_t place = AsciiLower(OptionLetter(option));
  if (printLayout_) return option == 0 ? kLabelOfA(number_, place, letter) : kLabel(number_, place, letter);
  if (flags_.key && key_[option]) return kKeyBox(number_, place, letter);
  return flags_.key ? kDisabledBox(number_, place, number_, letter) : kBox(number_, place, number_, letter);
}

std::u16string AnswerBlocks::ChoiceAnswerLines() const {
  const std::u16string mine = Capitals(LettersToFlags(question_.responseText));
  std::u16string html;
  if (flags_.key) html += kAnswerLine(correctAnswerIs_, Capitals(key_));
  if (flags_.response && flags_.key) {
    html += JudgedRight() ? kAnswerLine(yourAnswerIs_, mine) : kWrongAnswerLine(yourAnswerIs_, mine);
  } else if (flags_.response) {
    html += JudgedRight() ? kAnswerOnly(mine) : kWrongAnswerOnly(mine);
  }
  return html;
}

std::u16string AnswerBlocks::FillInBlock() const {
  std::u16string html;
  if (flags_.question && printLayout_) html += kOpenLabel(number_);
  if (flags_.question && !printLayout_ && TakesInput()) html += kFillInInput(number_, number_);
  html += FillInAnswerLine();
  if (!printLayout_) html += u"<br><br>";
  return html;
}

std::u16string AnswerBlocks::FillInAnswerLine() const {
  const std::u16string answers = FillInAnswersJoined(question_.answerText, u" , ");
  const std::u16string& response = question_.responseText;
  if (flags_.key && flags_.response) {
    return JudgedRight() ? kFillInKeyAndAnswer(correctAnswerIs_, answers, yourAnswerIs_, response)
                         : kFillInKeyAndWrongAnswer(correctAnswerIs_, answers, yourAnswerIs_, response);
  }
  if (flags_.key) return kFillInKey(correctAnswerIs_, answers);
  if (flags_.response) return JudgedRight() ? kFillInAnswer(response) : kFillInWrongAnswer(response);
  return {};
}

std::u16string AnswerBlocks::EssayBlock() const {
  std::u16string html;
  if (flags_.question && printLayout_) html += kOpenLabel(number_);
  if (flags_.question && !printLayout_ && TakesInput()) html += kEssayInput(number_, number_);
  html += EssayAnswerLine();
  if (!printLayout_) html += u"<br><br>";
  return html;
}

/// Deliberate: the key of an essay is the fill-in answer; `essayAnswer` is for the teacher and on no page.
std::u16string AnswerBlocks::EssayAnswerLine() const {
  const std::u16string& key = question_.answerText;
  const std::u16string response = TextToHtml(question_.responseText);
  if (flags_.key && flags_.response)
    return kEssayKeyAndAnswer(correctAnswerIs_, TextToHtml(key), yourAnswerIs_, response);
  if (flags_.key) return kEssayKey(correctAnswerIs_, key);
  return kEssayAnswer(response);
}

}  // namespace quorvantis
