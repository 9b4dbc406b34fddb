// SPDX-License-Identifier: MIT
// Options in a text, told by labels that follow each other in an alphabet.
#pragma once

#include "import/labels/OptionAlphabets.h"
#include "text/TextSpan.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace quorvantis {

/// The label of an option: "A.", "(b)", "③".
struct OptionLabel {
  std::size_t index = 0;  ///< 0 for the first letter of the alphabet
  TextSpan label;         ///< with its brackets, without blanks and sign
  TextSpan letter;        ///< within the label
  TextSpan sign;          ///< before it, as "*" in "* A."; empty if there is none
  TextSpan text;          ///< of the option: up to the next label, without blanks at its ends
  bool beginsLine = false;
  char16_t open = 0;   ///< its bracket, or 0
  char16_t close = 0;  ///< what ends it, or 0
};

/// The options of one question.
struct OptionSequence {
  std::size_t alphabet = 0;  ///< in OptionAlphabets
  std::vector<OptionLabel> labels{};

  /// How many begin their lines.
  std::size_t LineStarts() const;
};

/// The options within a span of `text`, which is about one question: the longest run of labels of one
/// alphabet from its first letter on, at least two. Labels that begin lines outweigh those within lines, and
/// letters the numbered statements before them. Nothing if there is no such run.
std::optional<OptionSequence> FindOptions(std::u16string_view text, TextSpan within);

/// All runs of labels within the span, whatever their alphabet, the best first.
std::vector<OptionSequence> FindOptionRuns(std::u16string_view text, TextSpan within);

/// What can end a label, and what can begin one. The last of each are those of prepared labels.
inline constexpr std::u16string_view kLabelCloses = u".)）．、:：]】,，-–—>｡。〉》/\u27E7";
/// Of these, those that also stand between words: within a line they end a label only where it is set off.
inline constexpr std::u16string_view kWeakLabelCloses = u",，-–—>。/";
inline constexpr std::u16string_view kLabelOpens = u"(（[【〈《<\u27E6";

}  // namespace quorvantis
