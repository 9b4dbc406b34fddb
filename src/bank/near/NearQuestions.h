// SPDX-License-Identifier: MIT
#pragma once

#include "bank/near/QuestionSketch.h"
#include "likeness/Shingles.h"

#include <cstddef>
#include <functional>
#include <span>
#include <vector>

namespace quorvantis {

/// Two questions that are alike, by their places in the list; `first` is before `second`.
struct NearPair {
  std::size_t first = 0;
  std::size_t second = 0;
  double likeness = 0;  ///< exact, kAlike (likeness/QuestionRelation.h) to 1
};

/// Which of many questions are alike.
struct NearQuestions {
  /// Groups of two or more with the same shingles, each ascending, ordered by their first members. The first
  /// member stands for the group in `pairs`.
  std::vector<std::vector<std::size_t>> equal;
  std::vector<NearPair> pairs;  ///< all but equal ones, ascending
  /// Questions with so many others like them, or almost, that not all pairs of two of these were looked for.
  /// Each has pairs with at least kMostPartners others, or has been compared with thousands.
  std::vector<std::size_t> crowded;
  bool isCancelled = false;  ///< then the rest is incomplete

  /// From this number of partners on a question is crowded.
  static constexpr std::size_t kMostPartners = 64;
};

/// The shingles of the question at a place of the list, for an exact comparison. Called again and again for
/// some, never for most.
using ShinglesAt = std::function<Shingles(std::size_t place)>;

/// Finds all pairs with a likeness of kAlike or more, each with certainty but for one in ten million. Needs
/// memory in proportion to the number of sketches, however many pairs there are: pairs of which both are
/// crowded are left out. `isCancelled`, which may be empty, is polled often.
NearQuestions FindNearQuestions(std::span<const QuestionSketch> sketches, const ShinglesAt& shinglesAt,
                                const std::function<bool()>& isCancelled = {});

}  // namespace quorvantis
