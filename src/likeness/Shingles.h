// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// The set of shingles of one or more texts: of all runs of four UTF-16 units that occur in them. It is
/// exact: a shingle is the number that its units make, so two sets share what the texts share.
class Shingles {
 public:
  static constexpr std::size_t kUnits = 4;  ///< UTF-16 units of a shingle

  Shingles() = default;
  /// Of normalised texts (likeness/TextSketch.h). No shingle reaches from one into the next, so their order
  /// does not matter. A text shorter than a shingle is one by itself; an empty one has none.
  explicit Shingles(std::span<const std::u16string> normalised);
  explicit Shingles(std::u16string_view normalised);

  /// In ascending order, each once.
  const std::vector<std::uint64_t>& Values() const { return values_; }
  bool IsEmpty() const { return values_.empty(); }

  /// The share of the shingles of both that they have in common, 0 to 1 (Jaccard's similarity); 1 if neither
  /// has any. Takes time in proportion to the sizes.
  double Likeness(const Shingles& other) const;

  friend bool operator==(const Shingles&, const Shingles&) = default;

 private:
  void Add(std::u16string_view normalised);
  void Sort();

  std::vector<std::uint64_t> values_;
};

}  // namespace quorvantis
