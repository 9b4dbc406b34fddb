// SPDX-License-Identifier: MIT
#include "exchange/plain/MarkdownWriter.h"

#include "exchange/form/Points.h"
#include "exchange/form/TextSource.h"
#include "exchange/markup/Markup.h"
#include "model/AnswerLetters.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/LineBreaks.h"
#include "text/MarkdownEscapes.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <utility>

namespace quorvantis {
namespace {

constexpr std::u16string_view kIndent = u"    ";

/// The characters of a text, with what Markdown would take for markup protected.
std::u16string MarkdownText(std::u16string_view examText, std::u16string_view indent) {
  // Two blanks before a line end make it a line break.
  return WithLineEnds(ProtectMarkdown(ExamTextToPlain(examText)), u"  \n" + std::u16string(indent));
}

std::u16string AnswerText(const ExchangedQuestion& question) {
  std::u16string answer;
  for (std::size_t i = 0; i < question.options.size(); ++i) {
    if (question.options[i].isRight) answer.push_back(static_cast<char16_t>(u'A' + i));
  }
  for (const BlankAnswers& blank : question.blanks) {
    for (const std::u16string& one : blank)
      answer.append(answer.empty() ? u"" : u", ").append(MarkdownText(one, u""));
  }
  return answer + MarkdownText(question.modelAnswer, kIndent);
}

/// Whether lines are such as MarkdownWriter puts below each other. Other texts have numbered questions, too.
class MarkdownShape {
 public:
  bool Take(std::u16string_view line) {
    const bool goesOn = std::exchange(isBroken_, line.ends_with(u"  "));
    const std::u16string_view shown = Trimmed(line);
    if (shown.empty()) return true;
    if (!goesOn && shown.starts_with(u"ANSWER:")) return false;  // as Aiken has it
    if (number_ > 0 && line.starts_with(kIndent)) {
      hasParts_ = true;
      return goesOn || IsOption(line.substr(kIndent.size())) || IsAnswer(shown);
    }
    if (number_ == 0 && line.starts_with(u"# ")) return true;
    return line.starts_with(FormatInteger(++number_) + u". ");
  }

  bool HasParts() const { return hasParts_; }

 private:
  static bool IsOption(std::u16string_view line) {
    return line.size() > 2 && line[0] >= u'A' && line[0] <= u'Z' && line.substr(1).starts_with(u". ");
  }

  /// In any language.
  static bool IsAnswer(std::u16string_view line) { return line.find_first_of(u":\uFF1A") != line.npos; }

  int number_ = 0;
  bool isBroken_ = false;  ///< the last line ends in a line break
  bool hasParts_ = false;
};

}  // namespace

std::string MarkdownWriter::Write(const ExchangedExam& exam, const StringTable& strings, Progress&) {
  std::u16string text;
  if (!exam.title.empty()) text = u"# " + MarkdownText(exam.title, u"") + u"\n";
  int number = 0;
  for (const ExchangedQuestion& question : exam.questions) {
    text += u"\n" + FormatInteger(++number) + u". " + MarkdownText(question.text, kIndent);
    if (question.score)
      text += u" " +
              FillMessage(strings.Text(text_id::kExchangePoints), {Utf8ToUtf16(PointsText(*question.score))});
    text += u"\n";
    for (std::size_t i = 0; i < question.options.size(); ++i) {
      const auto letter = static_cast<char16_t>(u'A' + i);
      text.append(kIndent)
          .append({letter, u'.', u' '})
          .append(MarkdownText(question.options[i].text, kIndent)) += u"  \n";
    }
    const std::u16string answer = AnswerText(question);
    if (!answer.empty())
      text.append(kIndent) += FillMessage(strings.Text(text_id::kExchangeAnswer), {answer}) + u"\n";
  }
  return Utf16ToUtf8(text);
}

bool LooksLikeMarkdown(const ExchangeSource& source) {
  const std::u16string head = HeadText(source);
  MarkdownShape shape;
  for (const std::u16string_view line : LinesOf(head)) {
    if (!shape.Take(line)) return false;
  }
  return shape.HasParts();
}

}  // namespace quorvantis
