// SPDX-License-Identifier: MIT
#include "import/keys/ShownAnswer.h"

#include "import/keys/BracketedKey.h"
#include "import/labels/LineText.h"
#include "import/lines/AnswerHeadings.h"
#include "import/lines/FoldedText.h"

#include <algorithm>

namespace quorvantis {
namespace {

bool IsUnitOf(std::u16string_view units, char16_t unit) {
  return units.find(unit) != units.npos;
}

/// Where the answer behind an answer label with a colon begins; nothing if there is no such label.
std::optional<std::size_t> BehindAnswerLabel(std::u16string_view text, TextSpan inner) {
  constexpr std::size_t kLongestLabel = 30;
  const std::u16string_view begin = inner.Of(text).substr(0, kLongestLabel);
  const std::size_t colon = begin.find_first_of(u":：");
  if (colon == begin.npos || AnswerHeadingOf(begin.substr(0, colon)) != AnswerHeading::Clear)
    return std::nullopt;
  return inner.begin + colon + 1;
}

/// Moves the begin of what goes over blanks and, from the begin of a line, over the line end before it.
std::size_t WithSpaceBefore(std::u16string_view text, std::size_t begin, std::size_t least) {
  const auto isSpace = [text](std::size_t at) { return IsBlank(text[at]) || IsLineEnd(text[at]); };
  while (begin > least && isSpace(begin - 1)) --begin;
  return begin;
}

std::optional<ShownAnswer> LabelledAnswerOfLine(std::u16string_view text, TextSpan line, std::size_t least) {
  constexpr std::size_t kLongest = 400;
  if (line.IsEmpty() || !IsUnitOf(u")）]】〕", text[line.end - 1])) return std::nullopt;
  const std::size_t first = line.Size() > kLongest ? line.end - kLongest : line.begin;
  for (std::size_t at = first; at < line.end; ++at) {
    if (!IsUnitOf(u"(（[【〔", text[at])) continue;
    const TextSpan inner{at + 1, line.end - 1};
    const auto answer = BehindAnswerLabel(text, inner);
    if (!answer) continue;
    const TextSpan written = Trimmed(text, {*answer, inner.end});
    if (written.IsEmpty()) return std::nullopt;
    return ShownAnswer{{WithSpaceBefore(text, at, least), line.end}, written};
  }
  return std::nullopt;
}

/// Where what sets a word off from the statement before it begins; nothing if it belongs to the statement.
std::optional<std::size_t> SetOffBefore(std::u16string_view text, std::size_t word, std::size_t least) {
  std::size_t at = word;
  while (at > least && IsBlank(text[at - 1])) --at;
  if (at == least) return std::nullopt;
  const bool isFar = word - at > 1 || (word > at && text[at] == u'\t');
  const char16_t before = text[at - 1];
  if (IsUnitOf(u".!?。！？…_＿", before)) return at;
  const bool isDash = IsUnitOf(u"-–—−", before) && at - 1 > least && IsBlank(text[at - 2]);
  if (isDash || IsUnitOf(u":：→⇒=>", before)) return WithSpaceBefore(text, at - 1, least);
  if (isFar) return at;
  return std::nullopt;
}

}  // namespace

std::optional<ShownAnswer> LabelledAnswerIn(std::u16string_view text, TextSpan body) {
  std::optional<ShownAnswer> found;
  for (const TextSpan& line : LinesOf(text, body)) {
    const auto answer = LabelledAnswerOfLine(text, Trimmed(text, line), body.begin);
    if (!answer) continue;
    if (found) return std::nullopt;
    found = answer;
  }
  return found;
}

std::optional<ShownAnswer> JudgementAtEndOf(std::u16string_view text, TextSpan statement) {
  constexpr std::size_t kLongestWord = 16;
  const TextSpan kept = Trimmed(text, statement);
  std::size_t end = kept.end;
  if (end > kept.begin && IsUnitOf(u".。", text[end - 1])) --end;
  const std::size_t lineBegin = std::max(LineBeginBefore(text, end), kept.begin);
  const std::size_t first = end - std::min(kLongestWord, end - lineBegin);
  for (std::size_t at = first; at < end; ++at) {
    if (at > lineBegin && AreInOneWord(text[at - 1], text[at])) continue;
    if (IsBlank(text[at]) || !IsJudgement(text.substr(at, end - at))) continue;
    if (SkipBlanks(text, lineBegin, end) == at) {
      if (lineBegin == kept.begin) return std::nullopt;
      return ShownAnswer{{WithSpaceBefore(text, at, kept.begin), kept.end}, {at, end}};
    }
    const auto begin = SetOffBefore(text, at, lineBegin);
    if (!begin || *begin <= kept.begin) return std::nullopt;
    return ShownAnswer{{*begin, kept.end}, {at, end}};
  }
  return std::nullopt;
}

}  // namespace quorvantis
