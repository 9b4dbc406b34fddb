// SPDX-License-Identifier: MIT
#pragma once

#include "learn/PaperStudy.h"

#include <iosfwd>

namespace quorvantis::cli {

/// Prints for each rule how often it has matched, with two examples.
void PrintRuleMatches(std::ostream& out, const PaperStudy& study);

/// Prints the lines of the paper that nothing has taken, or parts of them, with their numbers.
void PrintUntakenLines(std::ostream& out, const PaperStudy& study);

}  // namespace quorvantis::cli
