// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace quorvantis {

/// A number from which every bit of `value` changes about half of the bits; no two values give the same. It
/// is kept in files, so it never changes.
constexpr std::uint64_t MixedBits(std::uint64_t value) {
  std::uint64_t mixed = value + 0x9E3779B97F4A7C15U;
  mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
  mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
  return mixed ^ (mixed >> 31);
}

}  // namespace quorvantis
