// SPDX-License-Identifier: MIT
// What was learned of a paper, in words.
#pragma once

#include "learn/PaperLearner.h"
#include "platform/StringTable.h"

#include <string>
#include <vector>

namespace quorvantis {

/// A line about how sure the rules are, then one for each fact.
std::vector<std::u16string> LearnedLines(const LearnedRules& learned, const StringTable& strings);

/// A text for one fact, with up to three values.
std::u16string FactText(const LearnedFact& fact, const StringTable& strings);

/// The name of a role, as on the buttons of the studio.
std::u16string RoleName(PaperRole role, const StringTable& strings);

}  // namespace quorvantis
