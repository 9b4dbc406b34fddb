// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

namespace quorvantis {

/// What to search an exam for.
struct SearchQuery {
  std::u16string text;
  bool isPattern = false;   ///< the text is a regular expression of our matcher
  bool matchCase = false;   ///< "A" is not "a"
  bool wholeWords = false;  ///< see regex/WordBorders.h

  bool operator==(const SearchQuery&) const = default;
};

/// Polled while texts are searched, about every millisecond; true cancels the search. May be empty.
using SearchCancelled = std::function<bool()>;

/// How a search ended. Only Done means that everything was searched.
enum class SearchEnd {
  Done,
  Cancelled,
  TooLarge,  ///< the pattern needed too much memory
};

}  // namespace quorvantis
