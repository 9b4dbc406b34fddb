// SPDX-License-Identifier: MIT
#include "exchange/plain/MarkdownWriter.h"

#include "exchange/form/Points.h"
#include "exchange/markup/Markup.h"
#include "model/AnswerLetters.h"
#include "platform/TextNumbers.h"
#include "text/LineBreaks.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/Utf.h"

namespace quorvantis {
namespace {

/// The characters of a text, with what Markdown would take for markup protected.
std::u16string MarkdownText(std::u16string_view examText, std::u16string_view indent) {
  constexpr std::u16string_view kProtected = u"\\`*_[]<>#";
  std::u16string text;
  for (const char16_t unit : ExamTextToPlain(examText)) {
    if (kProtected.find(unit) != kProtected.npos) text.push_back(u'\\');
    text.push_back(unit);
  }
  // Two blanks before a line end make it a line break.
  return WithLineEnds(text, u"  \n" + std::u16string(indent));
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
  return answer + MarkdownText(question.modelAnswer, u"    ");
}

}  // namespace

std::string MarkdownWriter::Write(const ExchangedExam& exam, const StringTable& strings, Progress&) {
  constexpr std::u16string_view kIndent = u"    ";
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

}  // namespace quorvantis
