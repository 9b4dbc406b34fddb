// SPDX-License-Identifier: MIT
#include "versions/plan/ChosenOptions.h"

#include "versions/plan/CopyingChance.h"

#include <numeric>
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

ChosenOptions::Keys ChosenOptions::KeysOf(const std::vector<int>& questions,
                                          const std::vector<OptionOrder>& options) const {
  Keys keys;
  keys.reserve(questions.size());
  for (std::size_t place = 0; place < questions.size(); ++place)
    keys.push_back(KeyAfterMoving(exam_.Question(questions[place]), options[place]));
  return keys;
}

/// The number of keys in common with each version before.
std::vector<std::size_t> ChosenOptions::InCommon(const Keys& keys) const {
  std::vector<std::size_t> same(kept_.size());
  for (std::size_t version = 0; version < kept_.size(); ++version) {
    for (std::size_t place = 0; place < keys.size(); ++place)
      same[version] += keys[place] != 0 && keys[place] == kept_[version][place] ? 1 : 0;
  }
  return same;
}

/// How bad it is to have so many keys in common. Copying is worse than knowing what is not right.
std::int64_t ChosenOptions::CostOf(std::size_t same) const {
  constexpr std::int64_t kCopying = 16;
  const auto square = [](std::size_t more, std::size_t less) {
    const auto distance = static_cast<std::int64_t>(more - less);
    return distance * distance;
  };
  if (same > most_) return kCopying * square(same, most_);
  return same < fewest_ ? square(fewest_, same) : 0;
}

/// How much worse it gets with another key at the place.
std::int64_t ChosenOptions::CostOfMoving(std::size_t place, int from, int to,
                                         const std::vector<std::size_t>& same) const {
  std::int64_t cost = 0;
  for (std::size_t version = 0; version < kept_.size(); ++version) {
    const int key = kept_[version][place];
    if (key == from) cost += CostOf(same[version] - 1) - CostOf(same[version]);
    if (key == to) cost += CostOf(same[version] + 1) - CostOf(same[version]);
  }
  return cost;
}

std::vector<OptionOrder> ChosenOptions::Choose(const std::vector<int>& questions,
                                               SeededRandom& random) const {
  constexpr int kMostTries = 20'000;
  std::vector<OptionOrder> options = Any(questions, random);
  Keys keys = KeysOf(questions, options);
  std::vector<std::size_t> same = InCommon(keys);
  const auto addCost = [this](std::int64_t sum, std::size_t each) { return sum + CostOf(each); };
  std::int64_t cost = std::accumulate(same.begin(), same.end(), std::int64_t{0}, addCost);
  for (int i = 0; i < kMostTries && cost > 0; ++i) {
    const auto place = static_cast<std::size_t>(random.Below(questions.size()));
    const OptionOrder order = RandomOrder(questions[place], random);
    const int key = KeyAfterMoving(exam_.Question(questions[place]), order);
    if (key == keys[place]) continue;
    const std::int64_t worse = CostOfMoving(place, keys[place], key, same);
    if (worse > 0) continue;
    for (std::size_t version = 0; version < kept_.size(); ++version) {
      same[version] -= kept_[version][place] == keys[place] ? 1 : 0;
      same[version] += kept_[version][place] == key ? 1 : 0;
    }
    options[place] = order;
    keys[place] = key;
    cost += worse;
  }
  return options;
}

void ChosenOptions::Keep(const std::vector<int>& questions, const std::vector<OptionOrder>& options) {
  kept_.push_back(KeysOf(questions, options));
}

}  // namespace quorvantis
