// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quorvantis {

/// A picture as its pixels, three bytes each: red, green, blue; from left to right, then downwards.
struct PixelGrid {
  static constexpr std::size_t kPixelBytes = 3;

  std::size_t width = 0;
  std::size_t height = 0;
  std::vector<std::uint8_t> bytes;
};

/// The maximum number of pixels in a picture: a sheet scanned at 600 dpi has 35 million.
inline constexpr std::uint64_t kMostPixels = 50'000'000;

}  // namespace quorvantis
