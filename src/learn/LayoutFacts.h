// SPDX-License-Identifier: MIT
#pragma once

#include "learn/LayoutSearch.h"
#include "learn/PaperLearner.h"
#include "platform/TextNumbers.h"

#include <vector>

namespace quorvantis {

/// What was understood of a paper, for its teacher: the questions, their numbers, options and answers, what
/// was left out.
std::vector<LearnedFact> FactsOf(const Paper& paper, const TriedLayout& layout);

}  // namespace quorvantis
