// SPDX-License-Identifier: MIT
#pragma once

#include "bank/search/BankQuery.h"

#include <string>
#include <string_view>

namespace quorvantis {

/// A part of a query that blanks part from others.
struct QueryPart {
  std::u16string_view whole;  ///< as typed, without the "-"
  std::u16string name;        ///< what stands before a colon, folded and in English; empty if there is none
  std::u16string value;       ///< what follows it, or all; without quotation marks
  bool isExcluded = false;    ///< begins with "-"
  bool isQuoted = false;      ///< a phrase, not a filter
  bool isLast = false;        ///< nothing follows, not even a blank
  bool isBegun = false;       ///< the user may still be typing it
};

/// Narrows the query by a filter. False if the part is none, or has a value that its filter does not know.
bool TakeFilter(const QueryPart& part, const QueryWords& words, BankQuery& query);

}  // namespace quorvantis
