// SPDX-License-Identifier: MIT
#pragma once

#include "import/labels/OptionSequence.h"
#include "text/TextSpan.h"

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// Where the labels of options may stand.
enum class LabelPlaces {
  LineStarts,
  SetOff,  ///< at the beginning of a line, or behind a tab or two blanks
  Anywhere,
};

/// How the options of a paper are labelled, from all its questions together.
struct OptionFamily {
  std::set<std::size_t> alphabets{};  ///< in OptionAlphabets
  bool isPlain = false;               ///< some labels are letters with a close: "A."
  bool isBracketed = false;           ///< some are in brackets: "(A)"
  bool isBare = false;  ///< some are letters alone, set off by blanks at the beginning of a line
  std::set<char16_t> opens{};
  std::set<char16_t> closes{};
  std::size_t most = 0;       ///< options in a question, usually
  std::size_t questions = 0;  ///< that have such options
  std::size_t inLines = 0;    ///< of these, those with several options in one line

  bool IsEmpty() const { return alphabets.empty(); }

  /// The pattern of the label of option `index`.
  std::u16string LabelPattern(std::size_t index, LabelPlaces places) const;

  /// "A.", for telling users.
  std::u16string Example() const;
};

/// The family of the options in these bodies, the spans behind the numbers of questions. Labels that occur in
/// a few bodies only are left out.
OptionFamily FindOptionFamily(std::u16string_view text, const std::vector<TextSpan>& bodies);

}  // namespace quorvantis
