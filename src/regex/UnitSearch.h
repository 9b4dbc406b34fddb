// SPDX-License-Identifier: MIT
#pragma once

#include "regex/CharacterSet.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace quorvantis {

/// Finds the next unit of a text that is in a set.
class UnitSearch {
 public:
  explicit UnitSearch(std::shared_ptr<const CharacterSet> units);

  /// The index of the first unit in the set, from `from` on, which may be beyond the end. If there is none,
  /// the size of the text, or `from` if that is larger.
  std::size_t Find(std::u16string_view text, std::size_t from) const;

  static constexpr std::size_t kBlock = 64;  ///< units

  /// The units of the set among the kBlock units at `block`: a bit for each unit, the lowest for the first.
  std::uint64_t InBlock(const char16_t* block) const;

  /// Whether the set has few ranges, so that many units are checked in one step.
  bool IsWide() const { return isWide_; }

 private:
  struct Range {
    std::uint16_t first;
    std::uint16_t width;
  };

  std::size_t FirstInShort(const char16_t* block) const;
  bool HasOneInLong(const char16_t* block) const;

  std::shared_ptr<const CharacterSet> units_;
  std::vector<Range> ranges_;
  bool isWide_ = false;
};

}  // namespace quorvantis
