// SPDX-License-Identifier: MIT
#pragma once

#include "regex/RegexPattern.h"
#include "search/LiteralSearch.h"
#include "search/SearchQuery.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string_view>

namespace quorvantis {

/// A hit in one text, for the length of a call.
struct FoundText {
  std::size_t start;          ///< in UTF-16 units
  std::size_t end;            ///< likewise
  std::u16string_view text;   ///< that was searched
  const MatchResult* groups;  ///< of a pattern; null for a literal text
};

/// A query, ready to search texts. One thread at a time may use it.
class TextSearch {
 public:
  explicit TextSearch(const SearchQuery& query);

  /// Why the query cannot be used: a pattern with a mistake.
  const std::optional<RegexError>& PatternError() const { return pattern_.CompileError(); }

  /// The number of groups in the pattern, 0 for a literal text.
  int Groups() const { return pattern_.IsEmpty() ? 0 : pattern_.Groups() - 1; }

  /// Whether the text to search must have one LF for each line end (see SearchedText).
  bool CanMeetLineEnds() const { return meetsLineEnds_; }

  /// Calls `take` with every hit in `text`, from the front: the leftmost one, then the leftmost one after its
  /// end, so that hits do not overlap. A hit has at least one unit and never begins or ends within a
  /// surrogate pair. For whole words, a place where the pattern matches something else first is passed over.
  /// An empty query or one with a mistake has no hits.
  SearchEnd Search(std::u16string_view text, const SearchCancelled& isCancelled,
                   const std::function<void(const FoundText&)>& take) const;

 private:
  bool IsHit(std::u16string_view text, std::size_t start, std::size_t end) const;
  void SearchLiteral(std::u16string_view text, const std::function<void(const FoundText&)>& take) const;
  SearchEnd SearchPattern(std::u16string_view text, const SearchCancelled& isCancelled,
                          const std::function<void(const FoundText&)>& take) const;

  bool wholeWords_;
  bool meetsLineEnds_;
  std::optional<LiteralSearch> literal_;
  RegexPattern pattern_;
};

}  // namespace quorvantis
