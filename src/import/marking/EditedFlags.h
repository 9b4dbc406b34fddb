// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace quorvantis {

/// A flag for each character of a text that is edited, mostly from beginning to end. The flags after the last
/// edit are kept apart, so an edit moves few of them.
class EditedFlags {
 public:
  explicit EditedFlags(std::size_t size) : behind_(size, 0) {}

  std::size_t Size() const { return before_.size() + behind_.size(); }

  /// False outside of the text.
  bool Get(std::size_t index) const {
    if (index >= Size()) return false;
    return (index < before_.size() ? before_[index] : behind_[Size() - 1 - index]) != 0;
  }

  /// Replaces the flags from `begin` to `end` by `count` set ones.
  void Replace(std::size_t begin, std::size_t end, std::size_t count) {
    Part(end);
    before_.resize(begin);
    before_.resize(begin + count, 1);
  }

 private:
  void Part(std::size_t place) {
    for (; before_.size() > place; before_.pop_back()) behind_.push_back(before_.back());
    for (; before_.size() < place; behind_.pop_back()) before_.push_back(behind_.back());
  }

  std::vector<char> before_;
  std::vector<char> behind_;  ///< in reverse order
};

}  // namespace quorvantis
