// SPDX-License-Identifier: MIT
// Signs at options that may mean "right": before the label, behind it, or at the end of the text.
#pragma once

#include "import/paper/PaperOutline.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace quorvantis {

enum class MarkPlace { Before, Behind, AtEnd };
inline constexpr MarkPlace kMarkPlaces[] = {MarkPlace::Before, MarkPlace::Behind, MarkPlace::AtEnd};

/// A sign at an option.
struct OptionMark {
  char16_t sign = 0;  ///< 0 for none; a blank for an empty box, "c" for a word like "(correct)"
  TextSpan span{};    ///< all that belongs to it: brackets, and the blanks that set it off
};

/// What stands at one place of an option. `between` are the ends of the label before and the begin of the one
/// behind.
OptionMark MarkOf(std::u16string_view text, const OptionLabel& option, TextSpan between, MarkPlace place);

/// What stands at one place of all options of a question.
std::vector<OptionMark> MarksOf(std::u16string_view text, const OutlinedQuestion& question, MarkPlace place);

/// How sure it is that a sign means "right".
enum class SignMeaning {
  None,      ///< an empty box, a minus
  Right,     ///< a tick, or a word
  Likely,    ///< a star and the like, which may be decoration
  Possible,  ///< "X", "+"
};

SignMeaning MeaningOf(char16_t sign);

/// Whether a sign is what wrong options have where `right` is at the right ones.
bool IsOpposite(char16_t sign, char16_t right);

}  // namespace quorvantis
