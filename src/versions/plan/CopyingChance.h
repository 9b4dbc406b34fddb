// SPDX-License-Identifier: MIT
// How much two papers have in common by chance alone.
#pragma once

#include "model/ExamPaper.h"
#include "versions/plan/OptionOrder.h"
#include "versions/plan/PinnedParts.h"
#include "versions/plan/QuestionUnits.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace quorvantis {

/// How far what two papers share may be from chance, as a share of all places, where the plan can help it.
/// With far fewer equal keys than by chance, the key of a neighbour would tell what is not right.
inline constexpr double kToleratedShare = 0.05;

/// The key of a choice question as the sum of AnswerBoxWeight, with its options in the order; 0 if it has
/// none or is no choice question.
int KeyAfterMoving(const ExamQuestion& question, const OptionOrder& order);

/// The shares of places, 0 to 1, at which two random papers have the same. What is pinned is always the same.
struct CopyingChance {
  std::size_t places = 0;   ///< questions
  std::size_t keyed = 0;    ///< choice questions with a key
  double sameQuestion = 0;  ///< of `places`
  double sameKey = 0;       ///< of `keyed`

  /// How many places may at most be the same.
  std::size_t TolerableQuestions() const { return Tolerable(places, sameQuestion); }
  std::size_t TolerableKeys() const { return Tolerable(keyed, sameKey); }
  /// How many keys should at least be the same; at most TolerableKeys.
  std::size_t FewestKeys() const {
    const double fewest = std::ceil(static_cast<double>(keyed) * (sameKey - kToleratedShare) - kRounding);
    return fewest <= 0 ? 0 : std::min(static_cast<std::size_t>(fewest), TolerableKeys());
  }

 private:
  static constexpr double kRounding = 1e-9;

  static std::size_t Tolerable(std::size_t places, double chance) {
    return static_cast<std::size_t>(static_cast<double>(places) * (chance + kToleratedShare) + kRounding);
  }
};

CopyingChance ChanceOfCopying(const ExamPaper& exam, const PinnedParts& pinned, const QuestionUnits& units,
                              bool movesOptions);

}  // namespace quorvantis
