// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace quorvantis {

/// An item for each character of a text that is edited, mostly from beginning to end. The items behind the
/// last edit are kept apart, so an edit moves few of them.
template <class Item>
class EditedSequence {
 public:
  explicit EditedSequence(std::vector<Item> items) : before_(std::move(items)) {}

  std::size_t Size() const { return before_.size() + behind_.size(); }

  /// `index` is less than the size.
  const Item& At(std::size_t index) const {
    return index < before_.size() ? before_[index] : behind_[Size() - 1 - index];
  }

  /// Replaces the items from `begin` to `end` by `count` times `item`.
  void Replace(std::size_t begin, std::size_t end, std::size_t count, const Item& item) {
    Part(end);
    before_.resize(begin);
    before_.resize(begin + count, item);
  }

  /// All items, in their order; none are left.
  std::vector<Item> Take() {
    Part(Size());
    return std::move(before_);
  }

 private:
  void Part(std::size_t place) {
    for (; before_.size() > place; before_.pop_back()) behind_.push_back(before_.back());
    for (; before_.size() < place; behind_.pop_back()) before_.push_back(behind_.back());
  }

  std::vector<Item> before_;
  std::vector<Item> behind_;  ///< in reverse order
};

}  // namespace quorvantis
