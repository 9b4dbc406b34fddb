// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quorvantis {

/// Which places of a program have been tried at which positions of the text, and cannot lead to a match. One
/// bit each while the table is within its limit; beyond it, places share bytes that hold the last one.
/// Forgetting a failure costs time and never changes a result.
class FailureMemory {
 public:
  bool IsOn() const { return on_; }

  /// Starts remembering, for rows 0 to `rows` - 1 and positions 0 to `positions` - 1.
  void TurnOn(int rows, std::size_t positions) {
    on_ = rows > 0;
    positions_ = positions;
    const std::size_t bits = static_cast<std::size_t>(rows) * positions;
    exact_ = bits <= kMostBits;
    words_.assign(exact_ ? bits / 64 + 1 : kSharedWords, 0);
  }

  bool HasFailed(int row, int position) const {
    const std::uint64_t key = Key(row, position);
    if (exact_) return ((words_[key / 64] >> (key % 64)) & 1U) != 0;
    return words_[Shared(key)] == key + 1;
  }

  void Remember(int row, int position) {
    const std::uint64_t key = Key(row, position);
    if (exact_) {
      words_[key / 64] |= std::uint64_t{1} << (key % 64);
    } else {
      words_[Shared(key)] = key + 1;
    }
  }

 private:
  static constexpr std::size_t kMostBits = std::size_t{256} * 1024 * 1024;  // 32 MiB
  static constexpr std::size_t kSharedWords = std::size_t{4} * 1024 * 1024;

  std::uint64_t Key(int row, int position) const {
    return static_cast<std::uint64_t>(row) * positions_ + static_cast<std::uint64_t>(position);
  }
  static std::size_t Shared(std::uint64_t key) {
    constexpr std::uint64_t kMixer = 0x9E3779B97F4A7C15U;  // spreads neighbouring keys
    return static_cast<std::size_t>((key * kMixer) >> 42U) % kSharedWords;
  }

  bool on_ = false;
  bool exact_ = true;
  std::size_t positions_ = 0;
  std::vector<std::uint64_t> words_;
};

}  // namespace quorvantis
