// SPDX-License-Identifier: MIT
// Letters, or words for true and false, that stand where pupils are to write them: "( B )", "__C__", "（√）".
#pragma once

#include "import/labels/OptionSequence.h"
#include "text/TextSpan.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// A pair of brackets, or two runs of underscores, with little between.
struct BracketedText {
  TextSpan whole;  ///< with the brackets
  TextSpan inner;  ///< without blanks at its ends; empty in an empty pair
  bool isUnderscored = false;

  /// The same to be filled by pupils.
  std::u16string Emptied(std::u16string_view text) const;
};

/// The pair that begins at `place` and ends before `end`, on one line.
std::optional<BracketedText> BracketedAt(std::u16string_view text, std::size_t place, std::size_t end);

/// All such pairs within the span, from left to right.
std::vector<BracketedText> BracketedWithin(std::u16string_view text, TextSpan within);

/// The options that a text consisting of nothing but their letters names; empty if it says anything else.
std::vector<std::size_t> OptionsNamedAlone(std::u16string_view letters, const OptionSequence& options);

/// Whether a text is a word or mark for true or false and nothing else.
bool IsJudgement(std::u16string_view text);

}  // namespace quorvantis
