// SPDX-License-Identifier: MIT
#include "check/wording/OptionLabels.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace quorvantis {
namespace {

/// What an option consists of.
struct LabelList {
  std::vector<std::u16string_view> labels;
  bool areCertain = false;  ///< one is a label for certain: in brackets, circled, "ii"
  bool hasWord = false;     ///< such as "only" or "both"
  bool beginsWithLabel = false;

  void Add(std::u16string_view label, bool isCertain, bool isFirst) {
    if (std::find(labels.begin(), labels.end(), label) == labels.end()) labels.push_back(label);
    areCertain = areCertain || isCertain;
    beginsWithLabel = beginsWithLabel || isFirst;
  }
};

/// Labels of one unit that need nothing between them.
bool IsSign(char16_t unit) {
  const bool isCircled = unit >= u'\u2460' && unit <= u'\u2473';
  const bool isRoman = unit >= u'\u2170' && unit <= u'\u217B';
  return isCircled || isRoman ||
         std::u16string_view(u"甲乙丙丁戊ㄱㄴㄷㄹㅁ").find(unit) != std::u16string_view::npos;
}

bool IsRoman(std::u16string_view word) {
  constexpr std::u16string_view kLabels[] = {u"i", u"ii", u"iii", u"iv", u"v"};
  return std::find(std::begin(kLabels), std::end(kLabels), word) != std::end(kLabels);
}

bool IsDigitLabel(std::u16string_view word) {
  return word.size() == 1 && word[0] >= u'1' && word[0] <= u'5';
}

bool TakeWord(const WordedText& option, std::size_t index, LabelList& list) {
  const std::u16string_view word = option.Word(index);
  const bool isBracketed = option.After(index) == u')' && option.Before(index) == u'(';
  if (IsDigitLabel(word) || IsRoman(word)) {
    const bool isCertain = isBracketed || word.size() > 1;
    list.Add(word, isCertain, index == 0);
    return true;
  }
  const bool isStrong = option.Is(index, {WordUse::BesideLabel, WordUse::OptionNoun});
  list.hasWord = list.hasWord || isStrong;
  return isStrong || option.Is(index, {WordUse::Link, WordUse::Company});
}

/// The end of the longest phrase at `place` that stands beside labels in languages without blanks.
std::size_t EndOfPhraseBeside(const WordedText& option, std::size_t place, LabelList& list) {
  constexpr WordUses kBeside{WordUse::BeforeLetter, WordUse::AfterLetter, WordUse::NounAtLetter};
  for (const WordedText::FoundPhrase& phrase : option.Phrases()) {
    if (phrase.place.begin != place) continue;
    if (phrase.uses.HasAny(kBeside)) list.hasWord = true;
    if (phrase.uses.HasAny(kBeside) || phrase.uses.Has(WordUse::LinkOfLetters)) return phrase.place.end;
  }
  return place;
}

/// Signs of sums, points and ranges make no list.
bool MayStandBetween(char16_t unit) {
  constexpr std::u16string_view kBetween = u" ().,;:&/、，。；（）";
  return kBetween.find(unit) != std::u16string_view::npos;
}

/// Nothing if the option says anything else.
std::optional<LabelList> ListOfLabels(const WordedText& option) {
  LabelList list;
  std::size_t word = 0;
  const std::u16string_view folded = option.Folded();
  for (std::size_t at = 0; at < folded.size();) {
    if (word < option.WordCount() && option.Folding(word).begin == at && !IsSign(folded[at])) {
      if (!TakeWord(option, word, list)) return std::nullopt;
      at = option.Folding(word++).end;
      continue;
    }
    const std::size_t end = EndOfPhraseBeside(option, at, list);
    if (IsSign(folded[at])) {
      list.Add(folded.substr(at, 1), true, at == 0);
    } else if (end == at && !MayStandBetween(folded[at])) {
      return std::nullopt;
    }
    if (word < option.WordCount() && option.Folding(word).begin <= at) ++word;
    at = std::max(end, at + 1);
  }
  return list;
}

bool HasLabel(const WordedText& question, std::u16string_view label) {
  if (label.size() == 1 && IsSign(label[0]))
    return question.Folded().find(label) != std::u16string_view::npos;
  for (std::size_t i = 0; i < question.WordCount(); ++i) {
    if (question.Word(i) == label) return true;
  }
  return false;
}

}  // namespace

bool IsOptionLetter(char16_t unit) {
  constexpr std::u16string_view kArabic = u"أابجده";
  return (unit >= u'a' && unit <= u'e') || (unit >= u'ａ' && unit <= u'ｅ') ||
         (unit >= u'а' && unit <= u'д') || kArabic.find(unit) != std::u16string_view::npos;
}

bool NamesLabels(const WordedText& option, std::u16string_view question) {
  const auto list = ListOfLabels(option);
  if (!list || list->labels.empty()) return false;
  const bool isCertain = list->areCertain || list->hasWord;
  const bool namesOne = list->hasWord && (list->areCertain || list->beginsWithLabel);
  if (list->labels.size() > 1 ? !isCertain : !namesOne) return false;
  const WordedText asked(question);
  return !std::all_of(list->labels.begin(), list->labels.end(),
                      [&asked](std::u16string_view label) { return HasLabel(asked, label); });
}

}  // namespace quorvantis
