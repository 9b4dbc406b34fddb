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

}  // namespace quorvantis
