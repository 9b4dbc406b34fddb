// SPDX-License-Identifier: MIT
#include "exchange/plain/AikenLine.h"

#include "exchange/form/TextSource.h"
#include "text/AsciiCase.h"

namespace quorvantis {

std::optional<std::u16string_view> AnswerOfLine(std::u16string_view line) {
  const std::u16string_view word = kAikenAnswer.substr(0, kAikenAnswer.size() - 1);
  if (!EqualsIgnoringAsciiCase(line.substr(0, word.size()), word)) return std::nullopt;
  const std::u16string_view rest = Trimmed(line.substr(word.size()));
  if (!rest.starts_with(u':') && !rest.starts_with(u'\uFF1A')) return std::nullopt;
  return Trimmed(rest.substr(1));
}

std::optional<AikenOption> OptionOfLine(std::u16string_view line) {
  if (line.size() < 2 || (line[1] != u'.' && line[1] != u')')) return std::nullopt;
  const char16_t letter = AsciiUpper(line[0]);
  if (letter < u'A' || letter > u'Z') return std::nullopt;
  const std::u16string_view behind = line.substr(2);
  const std::u16string_view text = Trimmed(behind);
  return AikenOption{static_cast<std::size_t>(letter - u'A'), text.size() < behind.size() || text.empty(),
                     text};
}

}  // namespace quorvantis
