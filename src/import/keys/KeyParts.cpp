// SPDX-License-Identifier: MIT
#include "import/keys/KeyParts.h"

#include "import/keys/KeyVersions.h"
#include "import/labels/LineText.h"
#include "import/labels/Numerals.h"
#include "import/labels/OptionAlphabets.h"
#include "import/lines/AnswerWords.h"
#include "import/lines/FoldedText.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// A number in a title, and where it ends.
struct TitleNumber {
  int value = 0;
  std::size_t end = 0;
};

/// The number that a word of a title is: "2", "II", "B", "二"; 0 for none.
TitleNumber NumberAt(std::u16string_view title, std::size_t at) {
  constexpr int kMostParts = 20;
  const auto isWhole = [title](std::size_t end) {
    return end >= title.size() || !AreInOneWord(title[end - 1], title[end]) || title[end] >= 0x3041;
  };
  for (const Numeral& numeral : NumeralsAt(title, at)) {
    const bool isSmallRoman = numeral.kind == NumeralKind::LowerRoman;
    if (!isSmallRoman && numeral.value <= kMostParts && isWhole(at + numeral.size))
      return {numeral.value, at + numeral.size};
  }
  const std::vector<AlphabetLetter>& letters = AlphabetLettersOf(title[at]);
  if (letters.empty() || !isWhole(at + 1)) return {};
  return {static_cast<int>(letters.front().index) + 1, at + 1};
}

std::size_t WordEnd(std::u16string_view title, std::size_t at) {
  ++at;
  while (at < title.size() && AreInOneWord(title[at - 1], title[at])) ++at;
  return at;
}

/// Without what stands in brackets, as points do.
std::u16string WordsOf(std::u16string_view rest) {
  return FoldedCore(rest.substr(0, rest.find_first_of(u"(（[【:：", 1)));
}

}  // namespace

bool IsTitleOfPart(std::u16string_view line) {
  return IsPartTitle(line) || HasVersionMark(line);
}

PartName PartNameOf(std::u16string_view title) {
  const std::size_t first = static_cast<std::size_t>(
      std::find_if(title.begin(), title.end(), [](char16_t unit) { return IsLetterOrDigit(unit); }) -
      title.begin());
  if (first == title.size()) return {};
  PartName name;
  // "第二部分"
  const std::size_t begin = title[first] == u'第' && first + 1 < title.size() ? first + 1 : first;
  TitleNumber number = NumberAt(title, begin);
  if (number.value == 0) {
    const std::size_t word = WordEnd(title, first);
    std::size_t next = word;
    while (next < title.size() && !IsLetterOrDigit(title[next])) ++next;
    if (next < title.size() && IsPartTitle(title.substr(first, word - first))) number = NumberAt(title, next);
    if (number.value > 0) name.before = Folded(title.substr(first, word - first));
  }
  name.number = number.value;
  name.words = WordsOf(title.substr(number.value > 0 ? number.end : first));
  return name;
}

SameParts AreSameParts(const PartName& one, const PartName& other) {
  if (one.number > 0 && other.number > 0) return one.number == other.number ? SameParts::Yes : SameParts::No;
  constexpr std::size_t kFewestUnits = 2;
  if (std::min(one.words.size(), other.words.size()) < kFewestUnits) return SameParts::Unknown;
  const bool isWithin =
      one.words.find(other.words) != one.words.npos || other.words.find(one.words) != other.words.npos;
  return isWithin ? SameParts::Yes : SameParts::Unknown;
}

std::vector<PartTitle> PartTitlesOf(std::u16string_view text,
                                    const std::vector<OutlinedQuestion>& questions) {
  constexpr std::size_t kLongestTitle = 100;
  std::vector<PartTitle> titles;
  std::size_t begin = 0;
  for (std::size_t i = 0; i < questions.size(); ++i) {
    for (const TextSpan& line : LinesOf(text, {begin, std::max(begin, questions[i].label.begin)})) {
      const std::u16string_view title = Trimmed(text, line).Of(text);
      if (title.size() <= kLongestTitle && IsTitleOfPart(title)) titles.push_back({PartNameOf(title), i});
    }
    begin = questions[i].label.end;
    // So many lines are no titles.
    constexpr std::size_t kMostTitles = 200;
    if (titles.size() > kMostTitles) return {};
  }
  return titles;
}

bool IsInOtherPart(const std::vector<PartTitle>& titles, std::size_t question, const PartName& name) {
  if (name.number == 0) return false;
  bool isInPaper = false;
  const PartTitle* own = nullptr;
  for (const PartTitle& title : titles) {
    if (title.name.number == 0 || title.name.before != name.before) continue;
    isInPaper = isInPaper || title.name.number == name.number;
    if (title.question <= question) own = &title;
  }
  return isInPaper && own != nullptr && own->name.number != name.number;
}

}  // namespace quorvantis
