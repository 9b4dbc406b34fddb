// SPDX-License-Identifier: MIT
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quorvantis {

/// The number in `count` bytes at `offset`; missing bytes count as zero.
inline std::uint32_t NumberAt(std::string_view bytes, std::size_t offset, std::size_t count,
                              std::endian order = std::endian::little) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t at = offset + (order == std::endian::little ? count - 1 - i : i);
    value = value << 8U | (at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0U);
  }
  return value;
}

}  // namespace quorvantis
