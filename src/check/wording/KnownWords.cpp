// SPDX-License-Identifier: MIT
#include "check/wording/KnownWords.h"

#include "regex/WordBorders.h"

#include <algorithm>
#include <map>
#include <utility>

namespace quorvantis {
namespace {

constexpr WordRows (*kLanguages[])() = {
    EnglishWords,  GermanWords,  DutchWords,     FrenchWords, SpanishWords,     PortugueseWords, ItalianWords,
    RomanianWords, RussianWords, UkrainianWords, PolishWords, OtherSlavicWords, ArabicWords,     PersianWords,
    HebrewWords,   ChineseWords, JapaneseWords,  KoreanWords, TurkishWords,     OtherWords};

constexpr std::size_t kUses = static_cast<std::size_t>(WordUse::NounBehindNumber) + 1;
static_assert(kUses <= 64);

/// Much larger than the number of words, and a power of two.
constexpr std::size_t kPlaces = 0x2000;

constexpr std::size_t kHashes = 0x10000;

/// Spreads words of several languages well enough, and looks at few of their units.
std::size_t HashOfWord(std::u16string_view word) {
  const std::size_t ends = word.front() * 31U + word.back() * 1021U;
  return (ends + word[word.size() / 2] * 8209U + word.size() * 257U) % kHashes;
}

/// Of the first two units, or of the only one.
std::size_t HashOfBegin(char16_t first, char16_t second) {
  return (first * 40503U + second) % kHashes;
}

using Begin = std::pair<char16_t, char16_t>;

Begin BeginOf(std::u16string_view phrase) {
  return {phrase[0], phrase.size() > 1 ? phrase[1] : u'\0'};
}

bool IsSingleWord(std::u16string_view text) {
  return std::all_of(text.begin(), text.end(), IsPartOfWord);
}

}  // namespace

const KnownWords& KnownWords::Instance() {
  static const KnownWords table;
  return table;
}

KnownWords::KnownWords() : words_(kPlaces), wordsByUse_(kUses) {
  std::map<std::u16string_view, WordUses> all;
  for (const auto language : kLanguages) {
    for (const WordRow& row : language()) {
      std::vector<std::u16string_view>& ofUse = wordsByUse_[static_cast<std::size_t>(row.use)];
      ofUse.insert(ofUse.end(), row.words.begin(), row.words.end());
      for (const std::u16string_view word : row.words) all[word].Add(row.use);
    }
  }
  const auto isLonger = [](std::u16string_view a, std::u16string_view b) { return a.size() > b.size(); };
  for (auto& words : wordsByUse_) std::stable_sort(words.begin(), words.end(), isLonger);
  std::vector<Phrase> phrases;
  for (const auto& [text, uses] : all) {
    if (IsSingleWord(text))
      AddWord({text, uses});
    else
      phrases.push_back({text, uses});
  }
  AddPhrases(std::move(phrases));
}

void KnownWords::AddWord(const Phrase& word) {
  hashes_.set(HashOfWord(word.text));
  std::size_t place = HashOfWord(word.text) % kPlaces;
  while (!words_[place].word.empty()) place = (place + 1) % kPlaces;
  words_[place] = {word.text, word.uses};
}

void KnownWords::AddPhrases(std::vector<Phrase> phrases) {
  phrases_ = std::move(phrases);
  std::sort(phrases_.begin(), phrases_.end(), [](const Phrase& a, const Phrase& b) {
    if (BeginOf(a.text) != BeginOf(b.text)) return BeginOf(a.text) < BeginOf(b.text);
    return a.text.size() > b.text.size();
  });
  for (const Phrase& phrase : phrases_) {
    const auto [first, second] = BeginOf(phrase.text);
    begins_.set(HashOfBegin(first, second));
  }
}

WordUses KnownWords::UsesOf(std::u16string_view word) const {
  if (word.empty()) return {};
  const std::size_t hash = HashOfWord(word);
  if (!hashes_.test(hash)) return {};
  for (std::size_t place = hash % kPlaces; !words_[place].word.empty(); place = (place + 1) % kPlaces) {
    if (words_[place].word == word) return words_[place].uses;
  }
  return {};
}

std::span<const KnownWords::Phrase> KnownWords::PhrasesLike(std::u16string_view text) const {
  const Begin begin = BeginOf(text);
  if (!begins_.test(HashOfBegin(begin.first, begin.second))) return {};
  struct IsBefore {
    bool operator()(const Phrase& phrase, const Begin& wanted) const { return BeginOf(phrase.text) < wanted; }
    bool operator()(const Begin& wanted, const Phrase& phrase) const { return wanted < BeginOf(phrase.text); }
  };
  const auto [first, last] = std::equal_range(phrases_.begin(), phrases_.end(), begin, IsBefore());
  return {first, last};
}

std::span<const std::u16string_view> KnownWords::WordsFor(WordUse use) const {
  return wordsByUse_[static_cast<std::size_t>(use)];
}

}  // namespace quorvantis
