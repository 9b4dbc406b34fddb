// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace quorvantis {

/// Random numbers that a seed decides: the same on every machine and with every compiler, so that a shuffle
/// can be repeated years later. The generator is xoshiro256** with its state filled by splitmix64;
/// docs/VERSIONS.md describes it with numbers to test another program by. Not for secrets.
class SeededRandom {
 public:
  explicit SeededRandom(std::uint64_t seed);

  /// The next number, 0 to 2^64 - 1.
  std::uint64_t Next();

  /// A number from 0 up to, but not including, `count`, which is at least 1; each is equally likely.
  std::uint64_t Below(std::uint64_t count);

  /// Puts the values in a random order; each is equally likely.
  template <class Value>
  void Shuffle(std::vector<Value>& values) {
    for (std::size_t left = values.size(); left > 1; --left) {
      const auto chosen = static_cast<std::size_t>(Below(left));
      if (chosen != left - 1) std::swap(values[left - 1], values[chosen]);
    }
  }

 private:
  std::uint64_t state_[4];
};

}  // namespace quorvantis
