// SPDX-License-Identifier: MIT
#pragma once

#include "learn/LayoutSearch.h"
#include "learn/PaperLearner.h"

#include <vector>

namespace quorvantis {

/// What was understood of a paper, for its teacher: the questions, their numbers, options and answers, what
/// was left out.
std::vector<LearnedFact> FactsOf(const Paper& paper, const TriedLayout& layout);

/// Replaces the counts among some facts by those of another reading: rules may have been worked out from a
/// part of a paper alone.
void CountAnew(std::vector<LearnedFact>& facts, const ReadPaper& paper);

}  // namespace quorvantis
