// SPDX-License-Identifier: MIT
#pragma once

#include "text/TextSpan.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// A text as a search compares it: small letters without accents and vowel signs, wide and raised characters
/// as ordinary ones, one form of each quotation mark, dash, digit and Arabic letter, single blanks, no
/// markup. "H<sub>2</sub>O", "H₂O" and "h2o" are the same, so are "Éclair", "&Eacute;clair" and "eclair",
/// "أحمد" and "احمد".
std::u16string FoldForSearch(std::u16string_view text);

/// The same, with the way back to the original.
class FoldedText {
 public:
  explicit FoldedText(std::u16string_view text);

  const std::u16string& Text() const { return text_; }

  /// The part of the original that `part` of the folded text was made of, in UTF-16 units.
  TextSpan Original(TextSpan part) const;

 private:
  std::u16string text_;
  std::vector<TextSpan> origins_;  ///< of each unit of text_
};

/// Stands between texts that are searched together, where no query can match: folded texts do not have it.
constexpr char16_t kBetweenTexts = u'\u0001';

/// Whether tags of an element part the words around them, as those of "br" do and those of "b" do not. Its
/// name may be in capitals.
bool PartsWords(std::u16string_view element);

}  // namespace quorvantis
