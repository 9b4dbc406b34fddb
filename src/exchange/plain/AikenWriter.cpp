// SPDX-License-Identifier: MIT
#include "exchange/markup/Markup.h"
#include "exchange/plain/AikenFormat.h"
#include "exchange/plain/AikenLine.h"
#include "text/Utf.h"

namespace quorvantis {

std::string AikenWriter::Write(const ExchangedExam& exam, const StringTable&, Progress&) {
  std::u16string text;
  for (const ExchangedQuestion& question : exam.questions) {
    text += ExamTextToPlain(question.text) + u"\n";
    char16_t right = u'A';
    for (std::size_t i = 0; i < question.options.size(); ++i) {
      const auto letter = static_cast<char16_t>(u'A' + i);
      text.append({letter, u'.', u' '}).append(ExamTextToPlain(question.options[i].text)).append(u"\n");
      if (question.options[i].isRight) right = letter;
    }
    text.append(kAikenAnswer).append({u' ', right, u'\n', u'\n'});
  }
  return Utf16ToUtf8(text);
}

}  // namespace quorvantis
