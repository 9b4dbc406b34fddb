// SPDX-License-Identifier: MIT
#pragma once

#include "import/marking/RuleSearch.h"
#include "text/TextSpan.h"

#include <string_view>
#include <vector>

namespace quorvantis {

/// All matches of a rule within a span, one after the other. An empty match is no place of anything.
std::vector<TextSpan> MatchesOf(const RuleSearch& rule, std::u16string_view text, TextSpan within);

/// The same for a pattern; none for an empty one. `key` is the name of the rule in "ImportExam.ini".
std::vector<TextSpan> MatchesOf(std::u16string_view key, std::u16string_view pattern,
                                std::u16string_view text, TextSpan within, const CancelHook& isCancelled);

}  // namespace quorvantis
