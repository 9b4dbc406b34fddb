// SPDX-License-Identifier: MIT
#pragma once

#include "import/labels/OptionAlphabets.h"
#include "text/TextSpan.h"

#include <optional>
#include <string_view>

namespace quorvantis {

/// What looks like the label of an option at the beginning of a line: "A.", "(b)", "c )", "D".
struct LineLabel {
  TextSpan letter;
  TextSpan close;     ///< what ends it; empty, behind the letter, if the letter stands alone before a blank
  char16_t open = 0;  ///< its bracket, or 0
};

/// Blanks and one sign (labels/OptionSigns.h) may precede it.
std::optional<LineLabel> LineLabelOf(std::u16string_view text, TextSpan line);

}  // namespace quorvantis
