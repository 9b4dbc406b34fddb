// SPDX-License-Identifier: MIT
// Blocks of answers: many answers in one part of a paper.
#pragma once

#include "import/marking/RuleSearch.h"
#include "platform/DebugOutput.h"
#include "text/TextSpan.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// An answer in a block.
struct WrittenAnswer {
  int number = 0;  ///< in or before it; 0 for none
  TextSpan place;  ///< in the text
};

/// Finds the block of answers in a text and appends each answer in it to `answers`. Returns 1 if there is a
/// block, otherwise 0. `written`, if given, tells how each answer is written. Throws ImportFailure, also for
/// an empty answer.
int ParseAnswer(std::u16string_view text, const RuleSearch& item, const RuleSearch& block,
                std::vector<std::u16string>& answers, DebugOutput& debug,
                std::vector<WrittenAnswer>* written = nullptr);

/// The two symbols that true/false answers are made of ("T" and "F"): `first` is that of the first answer,
/// without a number before a dot. Does nothing unless `found` is 1 and there is a first answer.
void PickJudgementSymbols(const std::vector<std::u16string>& answers, std::u16string& first,
                          std::u16string& second, int found);

}  // namespace quorvantis
