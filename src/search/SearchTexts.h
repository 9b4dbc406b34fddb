// SPDX-License-Identifier: MIT
// What users read of a search.
#pragma once

#include "search/ReplacementPlan.h"

#include <string>

namespace quorvantis {

class StringTable;

/// The name of the field at a place, without its question: "Option B".
std::u16string FieldName(const TextPlace& place, const StringTable& strings);

/// A place in full: "Question 3, Option B".
std::u16string PlaceName(const TextPlace& place, const StringTable& strings);

/// Why a hit at `place` is left alone.
std::u16string ObstacleText(ReplacementObstacle obstacle, const TextPlace& place, const StringTable& strings);

/// Why the query and its replacement cannot be used; empty if they can.
std::u16string QueryProblem(const TextSearch& search, const StringTable& strings);
std::u16string ReplacementProblem(const ReplacementText& replacement, const TextSearch& search,
                                  const StringTable& strings);

/// Why a plan without replacements has none.
std::u16string NothingToReplaceText(const ReplacementPlan& plan, const StringTable& strings);

/// Why a search did not get to its end at `stoppedAt`; empty if it did.
std::u16string SearchProblem(SearchEnd end, const TextPlace& stoppedAt, const StringTable& strings);

}  // namespace quorvantis
