// SPDX-License-Identifier: MIT
// Blocks of answers: many answers in one part of a paper.
#pragma once

#include "import/RuleSearch.h"
#include "platform/DebugOutput.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// Finds the block of answers in a text and appends each answer in it to `answers`. Returns 1 if there is a
/// block, otherwise 0. `numbers`, if given, gets the number in or before each answer, 0 for none. Throws
/// ImportFailure, also for an empty answer.
int ParseAnswer(std::u16string_view text, const RuleSearch& item, const RuleSearch& block,
                std::vector<std::u16string>& answers, DebugOutput& debug,
                std::vector<int>* numbers = nullptr);

/// The two symbols that true/false answers are made of ("T" and "F"): `first` is that of the first answer,
/// without a number before a dot. Does nothing unless `found` is 1 and there is a first answer.
void PickJudgementSymbols(const std::vector<std::u16string>& answers, std::u16string& first,
                          std::u16string& second, int found);

}  // namespace quorvantis
