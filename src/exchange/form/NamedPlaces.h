// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace quorvantis {

/// What a text such as "B", "A, C", "a) and c)" or "1;3" says about the places of options.
struct NamedPlaces {
  std::vector<std::size_t> options;  ///< from 0 on, in the order in which they are named, each once
  bool namesOthers = false;          ///< letters or numbers of no option
  bool hasWords = false;             ///< something that is neither a letter nor a number
};

/// The places that a text names of options that have `letters`, ascending from 0 on ("A"). Words end the
/// list.
NamedPlaces PlacesIn(std::u16string_view text, const std::vector<std::size_t>& letters);

/// The same for `count` options without a gap between their letters.
NamedPlaces PlacesIn(std::u16string_view text, std::size_t count);

}  // namespace quorvantis
