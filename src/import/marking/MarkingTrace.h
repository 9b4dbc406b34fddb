// SPDX-License-Identifier: MIT
#pragma once

#include "import/marking/TextOrigins.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// What a rule has taken out of a text.
struct ReplacedMatch {
  std::u16string key;  ///< of the rule
  TextOrigins units;   ///< the places of what it took in the unmarked text
};

/// Where everything in a marked text came from, and where the rest went.
struct MarkingTrace {
  TextOrigins origins;  ///< of the units of the marked text
  std::vector<ReplacedMatch> replaced{};

  /// Follows a replacement of `size` units from `begin` on by `count` new ones.
  void Replace(std::u16string_view key, std::size_t begin, std::size_t size, std::size_t count) {
    ReplacedMatch match{std::u16string(key), {}};
    for (std::size_t i = begin; i < begin + size; ++i) {
      if (origins[i] != kInserted) match.units.push_back(origins[i]);
    }
    replaced.push_back(std::move(match));
    ReplaceOrigins(origins, begin, size, count);
  }
};

}  // namespace quorvantis
