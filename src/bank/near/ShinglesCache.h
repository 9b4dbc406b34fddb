// SPDX-License-Identifier: MIT
#pragma once

#include "likeness/Shingles.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace quorvantis {

/// Keeps the shingles of the questions that were compared last: a search over many asks for the same ones
/// again and again, and there is no room for all.
class ShinglesCache {
 public:
  /// `at` must outlive this.
  explicit ShinglesCache(const std::function<Shingles(std::size_t place)>& at) : at_(at), kept_(kPlaces) {}

  /// Exact; 1 only for the same shingles.
  double Likeness(std::size_t a, std::size_t b) {
    Keep(a);
    const Shingles& ofA = kept_[a % kPlaces].shingles;
    if (a % kPlaces == b % kPlaces && a != b) return ofA.Likeness(at_(b));
    Keep(b);
    return ofA.Likeness(kept_[b % kPlaces].shingles);
  }

 private:
  static constexpr std::size_t kPlaces = 1'024;  // 2.5 MB of usual questions

  struct Kept {
    std::optional<std::size_t> place;
    Shingles shingles;
  };

  void Keep(std::size_t place) {
    Kept& kept = kept_[place % kPlaces];
    if (kept.place == place) return;
    kept.shingles = at_(place);
    kept.place = place;
  }

  const std::function<Shingles(std::size_t place)>& at_;
  std::vector<Kept> kept_;
};

}  // namespace quorvantis
