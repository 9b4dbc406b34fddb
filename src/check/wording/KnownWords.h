// SPDX-License-Identifier: MIT
#pragma once

#include "check/wording/LanguageWords.h"

#include <bitset>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace quorvantis {

/// What a word or phrase is for, in any language.
class WordUses {
 public:
  constexpr WordUses() = default;
  constexpr WordUses(std::initializer_list<WordUse> uses) {
    for (const WordUse use : uses) Add(use);
  }

  constexpr void Add(WordUse use) { bits_ |= std::uint64_t{1} << static_cast<unsigned>(use); }
  constexpr void Add(WordUses uses) { bits_ |= uses.bits_; }
  constexpr bool Has(WordUse use) const { return HasAny({use}); }
  constexpr bool HasAny(WordUses uses) const { return (bits_ & uses.bits_) != 0; }

 private:
  std::uint64_t bits_ = 0;
};

/// The words and phrases of all languages. Made once, never changed.
class KnownWords {
 public:
  struct Phrase {
    std::u16string_view text;
    WordUses uses;
  };

  static const KnownWords& Instance();

  /// Of a word in lower case; none for a word that says nothing.
  WordUses UsesOf(std::u16string_view word) const;

  /// The phrases that may begin a text, by their first two units; longer ones first, then those of one unit.
  std::span<const Phrase> PhrasesLike(std::u16string_view text) const;

  /// All words and phrases for a use, longer ones first.
  std::span<const std::u16string_view> WordsFor(WordUse use) const;

 private:
  struct Entry {
    std::u16string_view word;
    WordUses uses;
  };

  KnownWords();
  void AddWord(const Phrase& word);
  void AddPhrases(std::vector<Phrase> phrases);

  std::vector<Entry> words_;     ///< at the place of their hash or after it
  std::bitset<0x10000> hashes_;  ///< of words: most words of a text say nothing
  std::vector<Phrase> phrases_;
  std::bitset<0x10000> begins_;  ///< hashes of first units of phrases
  std::vector<std::vector<std::u16string_view>> wordsByUse_;
};

}  // namespace quorvantis
