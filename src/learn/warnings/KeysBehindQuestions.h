// SPDX-License-Identifier: MIT
#pragma once

#include "import/marking/QuestionTextParser.h"
#include "learn/reading/PaperNumbers.h"

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace quorvantis {

/// The lines of a key without a heading that were taken for questions behind all others: they begin with the
/// letter of an option, and have numbers that questions before them have, too. For each of them, by its
/// index, its letter.
std::map<std::size_t, std::u16string> KeysBehindQuestions(const std::vector<ReadQuestion>& questions,
                                                          const std::vector<PaperNumber>& numbers);

}  // namespace quorvantis
