// SPDX-License-Identifier: MIT
#pragma once

#include "bank/search/BankQuery.h"
#include "bank/search/BankSearch.h"
#include "text/TextSpan.h"

#include <string_view>
#include <vector>

namespace quorvantis {

/// Where the wanted terms of a query are in a text, in UTF-16 units of the text, ascending, without overlaps.
std::vector<TextSpan> MatchesIn(std::u16string_view text, const BankQuery& query);

/// The same for all texts of a question.
std::vector<BankHighlight> HighlightsOf(const BankQuestion& question, const BankQuery& query);

}  // namespace quorvantis
