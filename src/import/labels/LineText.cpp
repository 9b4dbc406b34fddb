// SPDX-License-Identifier: MIT
#include "import/labels/LineText.h"

#include <algorithm>

namespace quorvantis {

std::vector<TextSpan> LinesOf(std::u16string_view text, TextSpan within) {
  std::vector<TextSpan> lines;
  std::size_t begin = within.begin;
  for (std::size_t at = begin; at < within.end; ++at) {
    if (!IsLineEnd(text[at])) continue;
    lines.push_back({begin, at});
    if (text[at] == u'\r' && at + 1 < within.end && text[at + 1] == u'\n') ++at;
    begin = at + 1;
  }
  if (begin < within.end) lines.push_back({begin, within.end});
  return lines;
}

TextSpan Trimmed(std::u16string_view text, TextSpan span) {
  const auto isSpace = [text](std::size_t at) { return IsBlank(text[at]) || IsLineEnd(text[at]); };
  TextSpan trimmed = span;
  while (trimmed.end > trimmed.begin && isSpace(trimmed.end - 1)) --trimmed.end;
  while (trimmed.begin < trimmed.end && isSpace(trimmed.begin)) ++trimmed.begin;
  return trimmed.IsEmpty() ? TextSpan{span.begin, span.begin} : trimmed;
}

bool BeginsLine(std::u16string_view text, std::size_t place) {
  while (place > 0 && IsBlank(text[place - 1])) --place;
  return place == 0 || IsLineEnd(text[place - 1]);
}

std::size_t LineEndAfter(std::u16string_view text, std::size_t place) {
  return std::min(text.find_first_of(kLineEnds, place), text.size());
}

std::size_t LineBeginBefore(std::u16string_view text, std::size_t place) {
  if (place == 0) return 0;
  const std::size_t before = text.find_last_of(kLineEnds, place - 1);
  return before == text.npos ? 0 : before + 1;
}

std::size_t SkipBlanks(std::u16string_view text, std::size_t place, std::size_t end) {
  while (place < end && IsBlank(text[place])) ++place;
  return place;
}

}  // namespace quorvantis
