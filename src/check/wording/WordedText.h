// SPDX-License-Identifier: MIT
#pragma once

#include "text/TextSpan.h"

#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace quorvantis {

/// A text as its words are compared: letters without case, markup and runs of blanks as one blank. Of a
/// language that puts no blanks between words, only phrases can be found.
class WordedText {
 public:
  explicit WordedText(std::u16string_view text);

  std::size_t WordCount() const { return words_.size(); }

  /// Word `index`, in lower case; empty for an index beyond the words, also for -1 as std::size_t.
  std::u16string_view Word(std::size_t index) const;

  /// Where word `index` stands in the original text, in UTF-16 units.
  TextSpan Place(std::size_t index) const { return places_[index]; }

  /// The folded units right before and right after word `index`; 0 at the ends of the text.
  char16_t Before(std::size_t index) const;
  char16_t After(std::size_t index) const;

  /// Whether one of `phrases`, each in lower case and with single blanks, stands in the text, not cut out of
  /// longer words.
  bool HasAny(std::span<const std::u16string_view> phrases) const;

  /// The whole folded text.
  std::u16string_view Folded() const { return folded_; }

  /// Where the unit at `place` of the folded text stands in the original text.
  std::size_t Origin(std::size_t place) const { return origins_[place]; }

 private:
  void Fold(std::u16string_view text);
  void CutIntoWords();

  std::u16string folded_;
  std::vector<std::size_t> origins_;  ///< of each folded unit, and one for the end
  std::vector<TextSpan> words_;       ///< in the folded text
  std::vector<TextSpan> places_;      ///< in the original text
};

/// Whether `word` is in a table of words.
template <const auto& kTable>
bool IsOneOf(std::u16string_view word) {
  static const std::unordered_set<std::u16string_view> kWords(std::begin(kTable), std::end(kTable));
  return kWords.contains(word);
}

}  // namespace quorvantis
