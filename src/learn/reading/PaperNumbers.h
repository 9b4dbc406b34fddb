// SPDX-License-Identifier: MIT
#pragma once

#include "import/paper/Paper.h"
#include "learn/reading/PaperReading.h"

#include <vector>

namespace quorvantis {

/// A question number as the paper has it.
struct PaperNumber {
  int value = 0;      ///< 0 if it cannot be told
  int question = -1;  ///< index of the question behind it, in ReadPaper::questions; -1 for none
};

/// What the rules have taken for numbers of questions, in the order of the paper. Those of parts that became
/// no question have the next question's index.
std::vector<PaperNumber> NumbersOf(const Paper& paper, const PaperReading& reading);

}  // namespace quorvantis
