// SPDX-License-Identifier: MIT
#include "import/keys/OptionMarks.h"

#include "import/keys/QuestionKey.h"
#include "import/labels/LineText.h"
#include "import/labels/OptionSigns.h"
#include "import/lines/AnswerWords.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::u16string_view kTicks = u"✓✔√☑✅";
constexpr std::u16string_view kMinus = u"-–−";
constexpr std::u16string_view kEmptyShapes = u" ○□☐◯◻";
constexpr std::u16string_view kCrosses = u"✗✘☒";
constexpr std::u16string_view kMarkOpens = u"([（【{";
constexpr std::u16string_view kMarkCloses = u")]）】}";

constexpr char16_t kEmptyBox = u' ';
constexpr char16_t kCorrectWord = u'c';

bool IsIn(std::u16string_view units, char16_t unit) {
  return units.find(unit) != units.npos;
}

/// The sign of what stands between brackets; 0 if it is something else.
char16_t SignOfInner(std::u16string_view inner) {
  if (inner.empty() || inner == u"_") return kEmptyBox;
  if (IsOptionSign(inner.front()) &&
      (inner.size() == 1 || inner.substr(1) == std::u16string_view(&kVariationSelector, 1)))
    return inner.front();
  return IsWordForCorrect(inner) ? kCorrectWord : u'\0';
}

/// A mark that ends before `end`: bracketed, or bare. `begin` bounds it.
OptionMark MarkBefore(std::u16string_view text, std::size_t begin, std::size_t end) {
  constexpr std::size_t kLongest = 30;
  std::size_t at = end;
  while (at > begin && IsBlank(text[at - 1])) --at;
  const std::size_t last = at;
  if (at > begin && IsIn(kMarkCloses, text[at - 1])) {
    std::size_t open = at - 1;
    while (open > begin && last - open < kLongest && !IsIn(kMarkOpens, text[open - 1]) &&
           !IsLineEnd(text[open - 1]))
      --open;
    if (open == begin || !IsIn(kMarkOpens, text[open - 1])) return {};
    const char16_t sign = SignOfInner(Trimmed(text, {open, last - 1}).Of(text));
    return sign == 0 ? OptionMark{} : OptionMark{sign, {open - 1, end}};
  }
  while (at > begin && text[at - 1] == kVariationSelector) --at;
  if (at == begin || !IsOptionSign(text[at - 1])) return {};
  const char16_t sign = text[at - 1];
  while (at > begin && text[at - 1] == sign) --at;
  return {sign, {at, end}};
}

/// A mark that begins at `begin`.
OptionMark MarkAfter(std::u16string_view text, std::size_t begin, std::size_t end) {
  std::size_t at = SkipBlanks(text, begin, end);
  if (at >= end) return {};
  if (IsIn(kMarkOpens, text[at])) {
    const std::size_t close = text.substr(0, end).find_first_of(kMarkCloses, at);
    if (close == text.npos || close - at > 4) return {};
    const char16_t sign = SignOfInner(Trimmed(text, {at + 1, close}).Of(text));
    if (sign == 0) return {};
    return {sign, {begin, SkipBlanks(text, close + 1, end)}};
  }
  const char16_t sign = text[at];
  if (!IsOptionSign(sign)) return {};
  while (at < end && (text[at] == sign || text[at] == kVariationSelector)) ++at;
  // "-5", "XVI" and "x = 3" are texts; only a plus, a minus or a crossed box may stand there without
  // brackets.
  const bool isPossible = MeaningOf(sign) == SignMeaning::Possible && !IsIn(kCrosses, sign);
  if (isPossible && sign != u'+') return {};
  const bool needsBlank = isPossible || IsIn(kMinus, sign);
  if (needsBlank && at < end && !IsBlank(text[at])) return {};
  return {sign, {begin, SkipBlanks(text, at, end)}};
}

/// A mark at the end of a text must be set off, unless nothing else looks like it.
OptionMark MarkAtEnd(std::u16string_view text, TextSpan line) {
  OptionMark mark = MarkBefore(text, line.begin, line.end);
  if (mark.sign == 0 || mark.sign == kEmptyBox || mark.span.begin == line.begin) return {};
  const bool isSetOff = IsBlank(text[mark.span.begin - 1]);
  const bool isBracketed = IsIn(kMarkOpens, text[mark.span.begin]);
  // "O+", "f(x)" and "Malcolm X" are texts; a plus that is set off may be a sign.
  if (MeaningOf(mark.sign) == SignMeaning::Possible && !(isSetOff && (isBracketed || mark.sign == u'+')))
    return {};
  if (MeaningOf(mark.sign) == SignMeaning::None) return {};
  while (mark.span.begin > line.begin && IsBlank(text[mark.span.begin - 1])) --mark.span.begin;
  return mark;
}

/// How wide blanks look.
std::size_t WidthOf(std::u16string_view text, TextSpan blanks) {
  constexpr std::size_t kTabWidth = 8;
  std::size_t width = 0;
  for (const char16_t unit : blanks.Of(text)) width += unit == u'\t' ? kTabWidth : unit == u'\u3000' ? 2 : 1;
  return width;
}

/// A mark at the end of an option, whose text may go up to the next option in the same line.
OptionMark MarkBetween(std::u16string_view text, TextSpan option) {
  const TextSpan line = FirstLineOf(text, option);
  const OptionMark mark = MarkAtEnd(text, line);
  if (mark.sign == 0 || SkipBlanks(text, line.end, option.end) < option.end || line.end == option.end)
    return mark;
  const std::size_t sign = SkipBlanks(text, mark.span.begin, line.end);
  const bool isCloser = WidthOf(text, {mark.span.begin, sign}) < WidthOf(text, {line.end, option.end});
  return isCloser ? mark : OptionMark{};
}

}  // namespace

SignMeaning MeaningOf(char16_t sign) {
  if (sign == kCorrectWord || IsIn(kTicks, sign)) return SignMeaning::Right;
  if (IsIn(kMinus, sign) || IsIn(kEmptyShapes, sign)) return SignMeaning::None;
  if (IsIn(kRightSigns, sign) && !IsIn(u"✗✘☒→⇒►▶", sign)) return SignMeaning::Likely;
  return SignMeaning::Possible;
}

bool IsOpposite(char16_t sign, char16_t right) {
  if (IsIn(kMinus, sign)) return right == u'+';
  if (IsIn(kCrosses, sign)) return MeaningOf(right) == SignMeaning::Right;
  return sign != 0 && IsIn(kEmptyShapes, sign);
}

OptionMark MarkOf(std::u16string_view text, const OptionLabel& option, TextSpan between, MarkPlace place) {
  if (place == MarkPlace::Behind) return MarkAfter(text, option.label.end, option.text.end);
  if (place == MarkPlace::AtEnd) return MarkBetween(text, {option.label.end, between.end});
  const std::size_t lineBegin = LineBeginBefore(text, option.label.begin);
  const std::size_t from = std::max(between.begin, lineBegin);
  OptionMark mark = MarkBefore(text, from, option.label.begin);
  if (mark.sign == 0) return {};
  std::size_t signEnd = mark.span.end;
  while (IsBlank(text[signEnd - 1]) && signEnd > mark.span.begin + 1) --signEnd;
  std::size_t before = mark.span.begin;
  while (before > from && IsBlank(text[before - 1])) --before;
  // Within a line a sign belongs to the option that it is closer to.
  const bool isCloser =
      before == from || WidthOf(text, {before, mark.span.begin}) > WidthOf(text, {signEnd, mark.span.end});
  return isCloser ? mark : OptionMark{};
}

std::vector<OptionMark> MarksOf(std::u16string_view text, const OutlinedQuestion& question, MarkPlace place) {
  std::vector<OptionMark> marks;
  const std::vector<OptionLabel>& labels = question.options->labels;
  for (std::size_t i = 0; i < labels.size(); ++i) {
    const std::size_t begin = i == 0 ? question.label.end : labels[i - 1].label.end;
    const std::size_t end = i + 1 < labels.size() ? labels[i + 1].label.begin : labels[i].text.end;
    marks.push_back(MarkOf(text, labels[i], {begin, end}, place));
  }
  return marks;
}

}  // namespace quorvantis
