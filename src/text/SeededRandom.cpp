// SPDX-License-Identifier: MIT
#include "text/SeededRandom.h"

#include <bit>

namespace quorvantis {
namespace {

/// One step of splitmix64.
std::uint64_t SplitMix(std::uint64_t& state) {
  state += 0x9E3779B97F4A7C15U;
  std::uint64_t mixed = state;
  mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
  mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
  return mixed ^ (mixed >> 31);
}

}  // namespace

SeededRandom::SeededRandom(std::uint64_t seed) : state_() {
  for (std::uint64_t& part : state_) part = SplitMix(seed);
}

std::uint64_t SeededRandom::Next() {
  const std::uint64_t result = std::rotl(state_[1] * 5, 7) * 9;
  const std::uint64_t shifted = state_[1] << 17;
  state_[2] ^= state_[0];
  state_[3] ^= state_[1];
  state_[1] ^= state_[2];
  state_[0] ^= state_[3];
  state_[2] ^= shifted;
  state_[3] = std::rotl(state_[3], 45);
  return result;
}

/// The lowest numbers, 2^64 modulo `count` of them, are drawn again: without them every remainder is equally
/// likely.
std::uint64_t SeededRandom::Below(std::uint64_t count) {
  const std::uint64_t unfair = (0 - count) % count;
  std::uint64_t drawn = Next();
  while (drawn < unfair) drawn = Next();
  return drawn % count;
}

}  // namespace quorvantis
