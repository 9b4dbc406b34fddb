// SPDX-License-Identifier: MIT
#pragma once

#include "likeness/Shingles.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// What is left of a text when its look does not count: its letters, digits and signs in lower case, with
/// single blanks between words, without punctuation and markup.
std::u16string Normalised(std::u16string_view text);

/// A sketch of a text: the smallest hashes of its shingles, which are all runs of a few units. Two sketches
/// have about as much in common as the sets of all shingles, however long the texts are.
class TextSketch {
 public:
  static constexpr std::size_t kShingle = Shingles::kUnits;
  static constexpr std::size_t kMost = 128;  ///< hashes

  TextSketch() = default;
  /// `normalised` shorter than a shingle is one by itself.
  explicit TextSketch(std::u16string_view normalised);

  /// In ascending order.
  const std::vector<std::uint32_t>& Hashes() const { return hashes_; }

  /// The estimated share of the shingles of both that they have in common, 0 to 1; 1 if neither has any.
  double Likeness(const TextSketch& other) const;

 private:
  /// Takes the hashes of all shingles up to `limit`.
  void Collect(std::u16string_view normalised, std::uint32_t limit);
  void KeepSmallest();

  std::vector<std::uint32_t> hashes_;
};

}  // namespace quorvantis
