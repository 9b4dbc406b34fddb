// SPDX-License-Identifier: MIT
#include "import/keys/BlankPlaces.h"

#include "import/labels/LineText.h"
#include "import/lines/FoldedText.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// Words, folded, that a sentence leads to a blank with. Names that letters belong to are none of them.
constexpr std::u16string_view kBeforeBlanks[] = {
    u"is",  u"are", u"was",  u"were",   u"be",   u"been",   u"the",   u"a",     u"an",       u"of",
    u"in",  u"on",  u"at",   u"to",     u"by",   u"for",    u"from",  u"with",  u"as",       u"and",
    u"or",  u"has", u"have", u"called", u"than", u"that",   u"into",  u"means", u"ist",      u"sind",
    u"war", u"der", u"die",  u"das",    u"von",  u"est",    u"sont",  u"le",    u"la",       u"les",
    u"de",  u"des", u"es",   u"son",    u"el",   u"los",    u"por",   u"é",     u"são",      u"o",
    u"e",   u"è",   u"sono", u"il",     u"di",   u"это",    u"в",     u"на",    u"является", u"jest",
    u"są",  u"w",   u"je",   u"jsou",   u"v",    u"adalah", u"ialah", u"là",    u"είναι"};

/// The same in scripts without blanks between words.
constexpr std::u16string_view kUnitsBeforeBlanks =
    u"是为為在叫称稱有于於的由用到与與和及被从從对對はがをにのでと은는이가을를";

bool IsAnyOf(char16_t unit, std::u16string_view units) {
  return units.find(unit) != units.npos;
}

/// Whether only marks stand between brackets and the end of the question.
bool IsAtEnd(std::u16string_view text, std::size_t at, std::size_t end) {
  while (at < end && (IsBlank(text[at]) || IsLineEnd(text[at]) || IsAnyOf(text[at], u".。．!！"))) ++at;
  return at == end;
}

bool IsLedTo(std::u16string_view before) {
  if (IsAnyOf(before.back(), kUnitsBeforeBlanks)) return true;
  std::size_t begin = before.size();
  while (begin > 0 && IsLetterOrDigit(before[begin - 1])) --begin;
  const std::u16string word = Folded(before.substr(begin));
  return std::ranges::find(kBeforeBlanks, word) != std::end(kBeforeBlanks);
}

}  // namespace

bool StandsAsBlank(std::u16string_view text, TextSpan stem, const BracketedText& pair) {
  const bool isPadded = pair.inner.begin > pair.whole.begin + 1 || pair.inner.end + 1 < pair.whole.end;
  if (pair.isUnderscored || isPadded) return true;
  const bool isWide = text[pair.whole.begin] >= 0x3000;
  if (isWide && IsAtEnd(text, pair.whole.end, stem.end)) return true;
  std::size_t before = pair.whole.begin;
  while (before > stem.begin && (IsBlank(text[before - 1]) || IsLineEnd(text[before - 1]))) --before;
  constexpr std::size_t kColumnGap = 2;
  const bool isApart = pair.whole.begin >= before + kColumnGap ||
                       (before < pair.whole.begin && (text[before] == u'\t' || IsLineEnd(text[before])));
  if (before == stem.begin || isApart || !IsLetterOrDigit(text[before - 1])) return true;
  return IsLedTo(text.substr(stem.begin, before - stem.begin));
}

}  // namespace quorvantis
