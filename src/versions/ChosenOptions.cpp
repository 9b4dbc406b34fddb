// SPDX-License-Identifier: MIT
#include "versions/ChosenOptions.h"

#include "versions/CopyingChance.h"

#include <algorithm>
#include <utility>

namespace quorvantis {

OptionOrder ChosenOptions::RandomOrder(int question, SeededRandom& random) const {
  OptionOrder order = kSourceOrder;
  const std::vector<std::size_t>& movable = pinned_.MovableOptions(question);
  std::vector<std::size_t> shuffled = movable;
  random.Shuffle(shuffled);
  for (std::size_t i = 0; i < movable.size(); ++i) order[movable[i]] = shuffled[i];
  return order;
}

std::vector<OptionOrder> ChosenOptions::Any(const std::vector<int>& questions, SeededRandom& random) const {
  std::vector<OptionOrder> options;
  options.reserve(questions.size());
  for (const int question : questions) options.push_back(RandomOrder(question, random));
  return options;
}

/// What it costs to have the key at the place: more for versions that have many keys in common already.
std::size_t ChosenOptions::CostAt(std::size_t place, int key, const std::vector<std::size_t>& same) const {
  std::size_t cost = 0;
  for (std::size_t version = 0; version < kept_.size(); ++version)
    cost += key != 0 && kept_[version][place] == key ? 2 * same[version] + 1 : 0;
  return cost;
}

ChosenOptions::Attempt ChosenOptions::Try(const std::vector<int>& questions, SeededRandom& random) const {
  constexpr int kTries = 24;
  Attempt attempt{{}, std::vector<std::size_t>(kept_.size())};
  for (std::size_t place = 0; place < questions.size(); ++place) {
    const ExamQuestion& question = exam_.Question(questions[place]);
    const bool isFixed = pinned_.MovableOptions(questions[place]).empty();
    OptionOrder best = RandomOrder(questions[place], random);
    int bestKey = KeyAfterMoving(question, best);
    std::size_t least = CostAt(place, bestKey, attempt.same);
    for (int i = 1; i < kTries && least > 0 && !isFixed; ++i) {
      const OptionOrder order = RandomOrder(questions[place], random);
      const int key = KeyAfterMoving(question, order);
      const std::size_t cost = CostAt(place, key, attempt.same);
      if (cost >= least) continue;
      best = order;
      bestKey = key;
      least = cost;
    }
    attempt.options.push_back(best);
    for (std::size_t version = 0; version < kept_.size(); ++version)
      attempt.same[version] += bestKey != 0 && kept_[version][place] == bestKey ? 1 : 0;
  }
  return attempt;
}

std::vector<OptionOrder> ChosenOptions::Choose(const std::vector<int>& questions,
                                               SeededRandom& random) const {
  constexpr int kAttempts = 20;
  Attempt best = Try(questions, random);
  const auto most = [](const Attempt& attempt) {
    return attempt.same.empty() ? 0 : *std::ranges::max_element(attempt.same);
  };
  for (int i = 1; i < kAttempts && most(best) > tolerable_; ++i) {
    Attempt attempt = Try(questions, random);
    if (most(attempt) < most(best)) best = std::move(attempt);
  }
  return std::move(best.options);
}

void ChosenOptions::Keep(const std::vector<int>& questions, const std::vector<OptionOrder>& options) {
  Keys keys;
  for (std::size_t place = 0; place < questions.size(); ++place)
    keys.push_back(KeyAfterMoving(exam_.Question(questions[place]), options[place]));
  kept_.push_back(std::move(keys));
}

}  // namespace quorvantis
