// SPDX-License-Identifier: MIT
#pragma once

#include "regex/LetterCase.h"
#include "regex/UnitSearch.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quorvantis {

/// Searches for a text as it stands. Without regard to case, letters are equal that are the same in Unicode's
/// simple folding (see regex/LetterCase.h): those of Latin, Greek, Cyrillic, Armenian and the other scripts
/// with case in the first 65536 characters. No letter equals two ("ß" is not "ss"), and none equals itself
/// with another accent.
class LiteralSearch {
 public:
  /// `wanted` must not be empty.
  LiteralSearch(std::u16string_view wanted, bool matchCase);

  /// Calls `visit` with each place in `text`, in UTF-16 units and in ascending order. Places may overlap.
  template <class Visit>
  void VisitPlaces(std::u16string_view text, const Visit& visit) const {
    if (text.size() < wanted_.size()) return;
    const std::size_t end = text.size() - wanted_.size() + 1;
    std::size_t at = 0;
    for (; at + UnitSearch::kBlock <= end; at += UnitSearch::kBlock) {
      for (std::uint64_t bits = first_.InBlock(text.data() + at); bits != 0; bits &= bits - 1) {
        const std::size_t place = at + static_cast<std::size_t>(std::countr_zero(bits));
        if (StandsAt(text.data() + place)) visit(place);
      }
    }
    const std::u16string_view places = text.substr(0, end);
    for (at = first_.Find(places, at); at < end; at = first_.Find(places, at + 1)) {
      if (StandsAt(text.data() + at)) visit(at);
    }
  }

  std::size_t Size() const { return wanted_.size(); }

 private:
  /// The first unit has been found already.
  bool StandsAt(const char16_t* place) const {
    for (std::size_t i = 1; i < wanted_.size(); ++i) {
      if (place[i] != wanted_[i] && (matchCase_ || FoldCase(place[i]) != wanted_[i])) return false;
    }
    return true;
  }

  bool matchCase_;
  std::u16string wanted_;  ///< folded, unless case matters
  UnitSearch first_;
};

}  // namespace quorvantis
