// SPDX-License-Identifier: MIT
#pragma once

#include "import/paper/PaperOutline.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace quorvantis {

/// What a teacher's answer to a choice question says.
struct OptionKey {
  std::vector<std::size_t> options{};  ///< indices of the right ones, ascending; empty if it is not clear

  bool IsClear() const { return !options.empty(); }
};

/// Reads an answer: letters ("B", "b)", "B and D", "A~C", "Option B"), numbers, ordinals, or the text of an
/// option, with or without an explanation behind. What can be read in two ways that differ, or names an
/// option that there is not, is not clear: "A or C", "A-C". `latinLetters`: see OptionNamed.
OptionKey ReadOptionKey(std::u16string_view text, const OptionSequence& options, std::u16string_view answer,
                        bool latinLetters = false);

/// The answer to put at a question whose key is written at a place: capital letters. Where Latin letters may
/// be meant by their looks, as among Cyrillic options, it stays as it is until all answers are known.
PaperText KeyAnswer(const PaperText& text, TextSpan written, const OptionSequence& options,
                    const OptionKey& key);

/// Whether an alphabet is one whose letters look like other Latin ones: "B" may be the second or the third.
bool IsCyrillic(const OptionSequence& options);

}  // namespace quorvantis
