// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace quorvantis {

/// `text` without the units of `around` at its begin and its end.
constexpr std::u16string_view WithoutAround(std::u16string_view text, std::u16string_view around) {
  const std::size_t begin = text.find_first_not_of(around);
  return begin == text.npos ? text.substr(text.size())
                            : text.substr(begin, text.find_last_not_of(around) + 1 - begin);
}

}  // namespace quorvantis
