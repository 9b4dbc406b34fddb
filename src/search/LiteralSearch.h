// SPDX-License-Identifier: MIT
#pragma once

#include "regex/UnitSearch.h"

#include <cstddef>
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

  /// The first place in `text` from `from` on, in UTF-16 units; npos if there is none.
  std::size_t Find(std::u16string_view text, std::size_t from) const;

  std::size_t Size() const { return wanted_.size(); }

 private:
  bool StandsAt(const char16_t* place) const;

  bool matchCase_;
  std::u16string wanted_;  ///< folded, unless case matters
  UnitSearch first_;
};

}  // namespace quorvantis
