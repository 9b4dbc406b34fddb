// SPDX-License-Identifier: MIT
#pragma once

#include "text/TextSpan.h"

#include <optional>
#include <string_view>
#include <vector>

namespace quorvantis {

/// What a browser would take for markup in a text that authors wrote.
struct MarkupFaults {
  std::vector<TextSpan> unmatched;  ///< tags of elements that need both, where one is missing
  std::vector<TextSpan> hidden;  ///< what looks like a tag and is none, and would not be shown: "<stdio.h>"
  std::vector<TextSpan> changingPage;  ///< what changes the whole page: "<style>"
  std::optional<TextSpan> swallowing;  ///< what hides the rest of the text: "<!--" without its end
};

/// Elements that a browser closes by itself ("p", "li", "td"…) need no end.
MarkupFaults FindMarkupFaults(std::u16string_view text);

/// The parts of a text that are set off by markup: within bold, underlined, italic or coloured elements.
std::vector<TextSpan> EmphasisedParts(std::u16string_view text);

}  // namespace quorvantis
