// SPDX-License-Identifier: MIT
#pragma once

#include "likeness/Shingles.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// What is kept of a question's shingles to find those like it among many (MinHash): of each of 128 hash
/// functions the lower half of the smallest value. Small, of fixed size, and the same on every machine.
class QuestionSketch {
 public:
  static constexpr std::size_t kValues = 128;
  static constexpr std::size_t kBands = 32;
  static constexpr std::size_t kBytes = 8 + 2 * kValues;
  /// Of the hash functions and of what `Bytes` gives. Kept sketches of another form must be made anew.
  static constexpr int kForm = 1;

  /// Of nothing; like no other.
  QuestionSketch() = default;
  /// `shingles`: those of ShinglesOf (likeness/QuestionRelation.h).
  explicit QuestionSketch(const Shingles& shingles);

  bool IsEmpty() const { return fingerprint_ == 0; }

  /// A hash of all shingles: two questions with the same shingles have the same, others hardly ever. 0 if
  /// there are none.
  std::uint64_t Fingerprint() const { return fingerprint_; }

  const std::array<std::uint16_t, kValues>& Values() const { return values_; }

  /// The values of one band, 0 to kBands - 1, as a number: equal for questions that are likely to be alike.
  std::uint64_t Band(std::size_t band) const;

  /// To be kept: kBytes bytes, in the order of bytes of no machine.
  std::string Bytes() const;
  /// Nothing unless there are kBytes bytes.
  static std::optional<QuestionSketch> FromBytes(std::string_view bytes);

  friend bool operator==(const QuestionSketch&, const QuestionSketch&) = default;

 private:
  std::uint64_t fingerprint_ = 0;
  std::array<std::uint16_t, kValues> values_{};
};

/// About the likeness of the shingles of both, 0 to 1; 0 if one is empty. It is off by 0.035 on average, by
/// more than 0.15 in one of 50,000 cases. Takes about 20 ns, so that a scan over 50,000 sketches in memory
/// needs no index.
double EstimateSimilarity(const QuestionSketch& a, const QuestionSketch& b);

/// From this estimate on a pair is worth an exact comparison: of those with a likeness of 0.8 or more, one in
/// millions is below.
inline constexpr double kWorthAnExactLook = 0.6;

/// The places of the sketches with which an exact comparison is worth while, ascending.
std::vector<std::size_t> LikelyAlike(const QuestionSketch& sketch, std::span<const QuestionSketch> others);

/// Keys to keep in an index: of pairs with a likeness of 0.8 all but one in twenty million have one in
/// common, of those with 0.5 seven of eight, of those with 0.2 one of twenty. One for each band; none for an
/// empty sketch.
std::vector<std::uint64_t> BandKeys(const QuestionSketch& sketch);

}  // namespace quorvantis
