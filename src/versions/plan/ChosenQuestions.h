// SPDX-License-Identifier: MIT
#pragma once

#include "text/SeededRandom.h"
#include "versions/plan/QuestionScores.h"
#include "versions/plan/QuestionUnits.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace quorvantis {

/// Chooses an order of questions for one version after the other: of several random ones that which has the
/// fewest questions at the same places as the versions before. Their choice does not prefer any question or
/// place, so each version by itself is as random as one order alone.
class ChosenQuestions {
 public:
  /// `tolerable` is how many places two versions may have in common before more orders are tried. All must
  /// outlive this.
  ChosenQuestions(const QuestionUnits& units, const QuestionScores& scores, std::size_t tolerable)
      : units_(units), scores_(scores), tolerable_(tolerable) {}

  /// An order for the next version; nothing if no order was found whose scores ten ranges can give.
  std::optional<std::vector<int>> Choose(SeededRandom& random) const;

  /// Any order, to find one that is different at all; likewise.
  std::optional<std::vector<int>> Any(SeededRandom& random) const;

  /// The order of a version is decided.
  void Keep(std::vector<int> order) { kept_.push_back(std::move(order)); }

 private:
  struct Likeness {
    std::size_t most = 0;  ///< places in common with one earlier version
    std::size_t sum = 0;   ///< of the squares, over all earlier versions
  };
  Likeness LikenessOf(const std::vector<int>& order) const;
  std::size_t MostTries() const;

  const QuestionUnits& units_;
  const QuestionScores& scores_;
  std::size_t tolerable_;
  std::vector<std::vector<int>> kept_;
};

}  // namespace quorvantis
