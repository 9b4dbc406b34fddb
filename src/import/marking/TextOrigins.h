// SPDX-License-Identifier: MIT
// Where the units of an edited text came from.
#pragma once

#include <cstddef>
#include <cstdint>
#include <numeric>
#include <vector>

namespace quorvantis {

/// For each UTF-16 unit of a text its place in the original, or kInserted for what was put in. Texts of
/// papers are far shorter than 4 Gi units.
using TextOrigins = std::vector<std::uint32_t>;

inline constexpr std::uint32_t kInserted = 0xFFFFFFFF;

/// Of a text that nobody has edited.
inline TextOrigins OriginsOfOriginal(std::size_t size) {
  TextOrigins origins(size);
  std::iota(origins.begin(), origins.end(), 0U);
  return origins;
}

/// Follows an edit: `size` units from `begin` on were replaced by `count` new ones.
inline void ReplaceOrigins(TextOrigins& origins, std::size_t begin, std::size_t size, std::size_t count) {
  const auto place = [&origins](std::size_t at) { return origins.begin() + static_cast<std::ptrdiff_t>(at); };
  const std::size_t kept = size < count ? size : count;
  for (std::size_t i = 0; i < kept; ++i) origins[begin + i] = kInserted;
  if (count > size) origins.insert(place(begin + kept), count - size, kInserted);
  if (size > count) origins.erase(place(begin + kept), place(begin + size));
}

}  // namespace quorvantis
