// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace quorvantis {

/// Where two texts differ: they are equal up to `start`, and again after `removed` units of the first and
/// `added` units of the second.
struct TextChange {
  std::size_t start = 0;
  std::size_t removed = 0;
  std::size_t added = 0;
};

TextChange FindChange(std::u16string_view before, std::u16string_view after);

/// The same, seen as the change that ends at `end` of `after`, where the cursor was left: among equal letters
/// several places would do, and what was typed over may reappear. Where no change can end there, it is that
/// of FindChange.
TextChange FindChange(std::u16string_view before, std::u16string_view after, std::size_t end);

}  // namespace quorvantis
