// SPDX-License-Identifier: MIT
#include "versions/plan/ChosenQuestions.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

constexpr std::size_t kFewestTries = 16;

}  // namespace

std::size_t ChosenQuestions::MostTries() const {
  constexpr std::size_t kMost = 4000;
  constexpr std::size_t kComparisons = 2'000'000;  // a few milliseconds
  const std::size_t perTry = std::max<std::size_t>(scores_.size() * kept_.size(), 1);
  return std::clamp(kComparisons / perTry, kFewestTries, kMost);
}

ChosenQuestions::Likeness ChosenQuestions::LikenessOf(const std::vector<int>& order) const {
  Likeness likeness;
  for (const std::vector<int>& kept : kept_) {
    std::size_t same = 0;
    for (std::size_t place = 0; place < order.size(); ++place) same += order[place] == kept[place] ? 1 : 0;
    likeness.most = std::max(likeness.most, same);
    likeness.sum += same * same;
  }
  return likeness;
}

std::optional<std::vector<int>> ChosenQuestions::Any(SeededRandom& random) const {
  constexpr int kTries = 200;
  for (int i = 0; i < kTries; ++i) {
    std::vector<int> order = units_.RandomOrder(random);
    QuestionScores moved(scores_.size());
    for (std::size_t place = 0; place < order.size(); ++place)
      moved[place + 1] = scores_[static_cast<std::size_t>(order[place])];
    // Ranges that the exam has already are taken over, however many its scores would need.
    if (moved == scores_ || RangesNeeded(moved) <= kScoreRanges) return order;
  }
  return std::nullopt;
}

std::optional<std::vector<int>> ChosenQuestions::Choose(SeededRandom& random) const {
  std::optional<std::vector<int>> best = Any(random);
  if (!best || kept_.empty()) return best;
  Likeness least = LikenessOf(*best);
  const std::size_t tries = MostTries();
  for (std::size_t i = 1; i < tries && (i < kFewestTries || least.most > tolerable_); ++i) {
    std::optional<std::vector<int>> order = Any(random);
    if (!order) break;
    const Likeness likeness = LikenessOf(*order);
    const bool isBetter = std::pair(likeness.most, likeness.sum) < std::pair(least.most, least.sum);
    if (!isBetter) continue;
    least = likeness;
    best = std::move(order);
  }
  return best;
}

}  // namespace quorvantis
