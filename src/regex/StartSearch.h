// SPDX-License-Identifier: MIT
#pragma once

#include "regex/UnitSearch.h"

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace quorvantis {

/// Finds the places of a text where a match can begin, by units that must stand near a place. A place that it
/// leaves out cannot match; one that it finds need not.
class StartSearch {
 public:
  /// At `offset` (-1, 0 or 1) from the place there must be one of these units. What would be before the start
  /// of the text always qualifies.
  struct Condition {
    int offset;
    std::shared_ptr<const CharacterSet> units;
  };

  /// There must be a condition, and no two with the same offset.
  explicit StartSearch(std::vector<Condition> conditions);

  /// The first such place from `from` on; nothing for none.
  std::optional<int> Find(std::u16string_view text, int from) const;

  /// How many units past a place may decide whether it is left out: 0 or 1.
  int Reach() const;

 private:
  bool CanBegin(std::u16string_view text, int place) const;

  std::vector<Condition> conditions_;  ///< the first one is searched for, the others are checked there
  UnitSearch search_;
};

}  // namespace quorvantis
