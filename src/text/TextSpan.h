// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace quorvantis {

/// A part of a text, in UTF-16 code units: from `begin` up to, but not including, `end`.
struct TextSpan {
  std::size_t begin = 0;
  std::size_t end = 0;

  constexpr std::size_t Size() const { return end - begin; }
  constexpr bool IsEmpty() const { return begin == end; }
  constexpr bool Contains(std::size_t place) const { return place >= begin && place < end; }
  constexpr bool Overlaps(const TextSpan& other) const { return begin < other.end && other.begin < end; }
  constexpr std::u16string_view Of(std::u16string_view text) const { return text.substr(begin, Size()); }

  friend constexpr bool operator==(const TextSpan&, const TextSpan&) = default;
};

}  // namespace quorvantis
