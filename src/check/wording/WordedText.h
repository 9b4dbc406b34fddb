// SPDX-License-Identifier: MIT
#pragma once

#include "check/wording/KnownWords.h"
#include "text/TextSpan.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// A text as its words are compared: letters without case, markup and runs of blanks as one blank, curly
/// apostrophes as straight ones. Knows which words and phrases say something of questions and options. Of a
/// language that puts no blanks between words, only phrases can be found.
class WordedText {
 public:
  /// A phrase that was found.
  struct FoundPhrase {
    TextSpan place;  ///< in the folded text
    WordUses uses;
  };

  /// `text` must outlive this.
  explicit WordedText(std::u16string_view text);

  std::size_t WordCount() const { return words_.size(); }

  /// Word `index`, in lower case; empty for an index beyond the words, also for -1 as std::size_t.
  std::u16string_view Word(std::size_t index) const;

  /// What word `index` is for; nothing for an index beyond the words.
  WordUses Uses(std::size_t index) const { return index < words_.size() ? words_[index].uses : WordUses(); }
  bool Is(std::size_t index, WordUses uses) const { return Uses(index).HasAny(uses); }

  /// Where word `index` stands in the original text, in UTF-16 units.
  TextSpan Place(std::size_t index) const { return OriginOf(words_[index].place); }
  /// Word `index` as it was written.
  std::u16string_view Written(std::size_t index) const { return Place(index).Of(original_); }
  /// Where word `index` stands in the folded text.
  TextSpan Folding(std::size_t index) const { return words_[index].place; }

  /// The folded units right before and right after word `index`; 0 at the ends of the text.
  char16_t Before(std::size_t index) const;
  char16_t After(std::size_t index) const;

  /// What stands between word `index` and the next one, or the end of the text; folded.
  std::u16string_view Gap(std::size_t index) const;

  /// In the order of their places, at the same place longer ones first. Not cut out of longer words, but
  /// Korean particles may follow.
  const std::vector<FoundPhrase>& Phrases() const { return phrases_; }

  /// Whether a word or phrase has one of these uses.
  bool Has(WordUses uses) const { return all_.HasAny(uses); }

  /// Whether a word begins or ends with a digit.
  bool HasDigits() const { return hasDigits_; }

  /// The whole folded text.
  std::u16string_view Folded() const { return folded_; }

  /// Where a part of the folded text, which is not empty, stands in the original text.
  TextSpan OriginOf(const TextSpan& folded) const {
    return {origins_[folded.begin], origins_[folded.end - 1] + std::size_t{1}};
  }

 private:
  struct FoundWord {
    TextSpan place;  ///< in the folded text
    WordUses uses;
  };

  void Fold();
  void CutIntoWords();
  void FindPhrasesAt(std::size_t place);
  void TakePhrases(std::span<const KnownWords::Phrase> phrases, std::size_t place);

  std::u16string_view original_;
  std::u16string folded_;
  std::vector<std::uint32_t> origins_;  ///< of each folded unit
  std::vector<FoundWord> words_;
  std::vector<FoundPhrase> phrases_;
  WordUses all_;
  bool hasDigits_ = false;
};

}  // namespace quorvantis
