// SPDX-License-Identifier: MIT
#include "import/lines/MisreadNumber.h"

#include "import/labels/LineText.h"
#include "text/NumberText.h"

#include <string>

namespace quorvantis {
namespace {

/// What a digit is taken for: the digit itself, then the others. Letters of options are left out.
constexpr std::u16string_view kTakenFor[] = {u"0OoQ", u"1lI|!", u"2Zz", u"3", u"4",
                                             u"5Ss",  u"6G",    u"7",   u"8", u"9gq"};

/// What a label may end in, by mistake, too.
constexpr std::u16string_view kMistakenCloses = u".,:;)）．、，-–—·'";

bool CanBeTakenFor(char16_t unit, char16_t digit) {
  return kTakenFor[digit - u'0'].find(unit) != std::u16string_view::npos;
}

}  // namespace

TextSpan MisreadNumberAt(std::u16string_view text, TextSpan line, int number) {
  const std::size_t begin = SkipBlanks(text, line.begin, line.end);
  const TextSpan none{begin, begin};
  const std::u16string digits = FormatInteger(number);
  std::size_t at = begin;
  for (const char16_t digit : digits) {
    if (at >= line.end || !CanBeTakenFor(text[at], digit)) return none;
    ++at;
  }
  const std::size_t close = SkipBlanks(text, at, std::min(at + 1, line.end));
  if (close >= line.end || kMistakenCloses.find(text[close]) == kMistakenCloses.npos) return none;
  return {begin, close + 1};
}

}  // namespace quorvantis
