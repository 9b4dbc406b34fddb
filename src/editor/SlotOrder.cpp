// SPDX-License-Identifier: MIT
#include "editor/SlotOrder.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace quorvantis {

SlotOrder::SlotOrder() : sources_(kMaxQuestions) {
  std::iota(sources_.begin(), sources_.end(), 1);
}

void SlotOrder::Move(const std::vector<int>& numbers, int to) {
  std::vector<int> moved;
  moved.reserve(numbers.size());
  for (const int number : numbers) moved.push_back(Source(number));
  Remove(numbers);
  sources_.resize(sources_.size() - moved.size());
  sources_.insert(sources_.begin() + (to - 1), moved.begin(), moved.end());
}

void SlotOrder::Remove(const std::vector<int>& numbers) {
  std::vector<int> kept;
  for (int number = 1; number <= kMaxQuestions; ++number) {
    if (!std::ranges::binary_search(numbers, number)) kept.push_back(Source(number));
  }
  kept.resize(kMaxQuestions, kEmpty);
  sources_ = std::move(kept);
}

void SlotOrder::Open(int after, int count) {
  sources_.insert(sources_.begin() + after, static_cast<std::size_t>(count), kEmpty);
  sources_.resize(kMaxQuestions);
}

int SlotOrder::NumberOf(int number) const {
  const auto found = std::ranges::find(sources_, number);
  return found == sources_.end() ? 0 : static_cast<int>(found - sources_.begin()) + 1;
}

}  // namespace quorvantis
