// SPDX-License-Identifier: MIT
#include "learn/warnings/KeyTraces.h"

#include "import/keys/KeyReader.h"
#include "import/keys/ShownAnswer.h"
#include "import/labels/LineText.h"
#include "import/labels/OptionAlphabets.h"
#include "import/lines/AnswerHeadings.h"
#include "import/lines/FoldedText.h"
#include "learn/patterns/AnswerLabels.h"

#include <algorithm>

namespace quorvantis {
namespace {

bool IsTraceDigit(char16_t unit) {
  return unit >= u'0' && unit <= u'9';
}

/// A number with a letter: "1b", "(2) C".
struct NumberedLetter {
  int number = 0;
  TextSpan place;
};

/// Whether a letter stands there by itself.
bool IsTraceLetter(std::u16string_view text, std::size_t at) {
  if (at >= text.size() || IsTraceDigit(text[at]) || AlphabetLettersOf(text[at]).empty()) return false;
  return at + 1 == text.size() || !AreInOneWord(text[at], text[at + 1]);
}

/// At a digit; the number 0 if there is no letter behind, or the letter begins a word: "1s2", "3 cats".
NumberedLetter NumberedLetterAt(std::u16string_view text, std::size_t place) {
  constexpr std::size_t kMostDigits = 3;
  constexpr std::size_t kMostBetween = 4;
  constexpr std::u16string_view kBetween = u" \t\u00A0\u3000.．)）]】:：-–—=>/、([（【";
  NumberedLetter found{0, {place, place}};
  int number = 0;
  std::size_t at = place;
  for (; at < text.size() && IsTraceDigit(text[at]); ++at) {
    if (at - place == kMostDigits) return found;
    number = number * 10 + (text[at] - u'0');
  }
  const std::size_t letter = std::min(text.find_first_not_of(kBetween, at), text.size());
  if (letter == text.size() || letter - at > kMostBetween) return found;
  if (!IsTraceLetter(text, letter)) return found;
  const bool isRange = letter + 1 < text.size() &&
                       std::u16string_view(u"-–—~～").find(text[letter + 1]) != std::u16string_view::npos &&
                       IsTraceLetter(text, letter + 2);
  found = {number, {place, letter + (isRange ? 3U : 1U)}};
  return found;
}

/// Whether nothing but marks stands between two such pairs.
bool AreNext(std::u16string_view text, std::size_t end, std::size_t begin) {
  constexpr std::u16string_view kSeparators = u" \t\u00A0\u3000,，;；.．。、|/／()[]（）【】·•-–—";
  constexpr std::size_t kMostBetween = 12;
  const std::u16string_view between = text.substr(end, begin - end);
  return between.size() <= kMostBetween && between.find_first_not_of(kSeparators) == between.npos;
}

/// "Pauta B C A": capitals behind a word for a key.
bool IsBareKeyLine(std::u16string_view line) {
  constexpr std::size_t kFewest = 3;
  constexpr int kMostWords = 4;
  if (Folded(line.back()) == line.back()) return false;
  std::size_t blank = line.find_first_of(kBlanks);
  for (int words = 0; blank != line.npos && words < kMostWords; ++words) {
    if (ReadBareKey(line, {blank + 1, line.size()}).size() >= kFewest)
      return AnswerHeadingOf(line.substr(0, blank)) == AnswerHeading::Clear;
    blank = line.find_first_of(kBlanks, blank + 1);
  }
  return false;
}

/// "Key: BCA", "Pauta – B C A": a word for a key that begins a line, and letters.
bool IsKeyLine(std::u16string_view line) {
  constexpr std::size_t kLongestWord = 40;
  const std::size_t mark = line.substr(0, kLongestWord).find_first_of(u":：=–—-");
  if (mark != line.npos && mark > 0 && AnswerHeadingOf(line.substr(0, mark)) == AnswerHeading::Clear) {
    const TextSpan rest = Trimmed(line, {mark + 1, line.size()});
    if (LooksLikeKey(rest.Of(line)) || !ReadBareKey(line, rest).empty() || HoldsAnswers(line, rest))
      return true;
  }
  return IsBareKeyLine(line);
}

/// "four   Answer: B"
bool EndsWithAnswer(std::u16string_view line) {
  constexpr std::size_t kLongestWords = 30;
  constexpr int kMostWords = 3;
  const std::size_t colon = line.find_last_of(u":：");
  if (colon == line.npos || !LooksLikeKey(Trimmed(line, {colon + 1, line.size()}).Of(line))) return false;
  int words = 0;
  for (std::size_t at = colon; at > 0 && colon - at < kLongestWords && words < kMostWords; --at) {
    const bool beginsWord = IsLetterOrDigit(line[at]) && !IsLetterOrDigit(line[at - 1]);
    if (!beginsWord) continue;
    ++words;
    if (AnswerHeadingOf(line.substr(at, colon - at)) == AnswerHeading::Clear) return true;
  }
  return false;
}

}  // namespace

std::u16string NumberedLetters(std::u16string_view text) {
  constexpr std::size_t kFewest = 3;
  std::size_t inARow = 0;
  std::size_t begin = 0;
  NumberedLetter last;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool beginsNumber = IsTraceDigit(text[at]) && (at == 0 || !IsLetterOrDigit(text[at - 1]));
    if (!beginsNumber) continue;
    const NumberedLetter next = NumberedLetterAt(text, at);
    if (next.number == 0) {
      inARow = 0;
      continue;
    }
    const bool goesOn =
        inARow > 0 && next.number == last.number + 1 && AreNext(text, last.place.end, next.place.begin);
    if (!goesOn) begin = at;
    inARow = goesOn ? inARow + 1 : 1;
    last = next;
    if (inARow == kFewest) return std::u16string(text.substr(begin, last.place.end - begin));
    at = next.place.end - 1;
  }
  return {};
}

std::u16string KeyTrace(std::u16string_view text) {
  constexpr std::size_t kEnough = 40;
  for (const TextSpan& whole : LinesOf(text, {0, text.size()})) {
    const TextSpan line = Trimmed(text, whole);
    if (line.IsEmpty()) continue;
    const std::u16string_view written = line.Of(text);
    if (IsKeyLine(written)) return std::u16string(written.substr(0, kEnough));
    if (EndsWithAnswer(written))
      return std::u16string(written.substr(written.size() - std::min(written.size(), kEnough)));
  }
  if (const auto shown = LabelledAnswerIn(text, {0, text.size()}))
    return std::u16string(shown->whole.Of(text).substr(0, kEnough));
  return {};
}

}  // namespace quorvantis
