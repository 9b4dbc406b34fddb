// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quorvantis {

/// One line of a list: a hit with some of the text around it. Line breaks, tabs and other control characters
/// are blanks, and "…" stands for what was cut off.
struct HitLine {
  std::u16string text;
  std::size_t start = 0;   ///< of the hit in the line, in UTF-16 units
  std::size_t length = 0;  ///< likewise; a long hit is cut off, too
};

/// The line of a hit that begins at `start` of `text` and has `length` units. Places beyond the text count as
/// its end.
HitLine LineAround(std::u16string_view text, std::size_t start, std::size_t length);

/// The same line with `replacement` in the place of the hit.
HitLine LineWith(std::u16string_view text, std::size_t start, std::size_t length,
                 std::u16string_view replacement);

}  // namespace quorvantis
