// SPDX-License-Identifier: MIT
#include "exchange/form/TextSource.h"

#include "exchange/form/ExchangeLimits.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/LineBreaks.h"
#include "text/WithoutAround.h"

#include <algorithm>

namespace quorvantis {

std::optional<std::u16string> ReadSourceText(const ExchangeSource& source, ReadingTools& tools) {
  const auto bytes = source.Bytes(kMaxExchangedFile);
  if (!bytes) {
    tools.notes.Tell(text_id::kExchangeSourceTooLarge);
    return std::nullopt;
  }
  const DecodedText decoded = DecodeText(*bytes);
  if (decoded.doubt != 0) tools.notes.Tell(decoded.doubt);
  return WithLineEnds(decoded.text, u"\n");
}

std::u16string HeadText(const ExchangeSource& source) {
  return WithLineEnds(DecodeText(source.Head()).text, u"\n");
}

std::u16string_view Trimmed(std::u16string_view text) {
  return WithoutAround(text, u" \t\r\n\u00A0");
}

std::u16string_view TakeLine(std::u16string_view& text) {
  const std::size_t end = std::min(text.find(u'\n'), text.size());
  const std::u16string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return line;
}

std::vector<std::u16string_view> LinesOf(std::u16string_view text) {
  std::vector<std::u16string_view> lines;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find(u'\n', begin), text.size());
    lines.push_back(text.substr(begin, end - begin));
    begin = end + 1;
  }
  return lines;
}

}  // namespace quorvantis
