// SPDX-License-Identifier: MIT
#pragma once

#include "import/paper/Paper.h"
#include "learn/PaperLearner.h"

#include <filesystem>
#include <string>
#include <vector>

namespace quorvantis::cli {

/// What a JSON file says of a paper: a list of {"text": …, "nth": 1, "role": …} or of
/// {"begin": …, "end": …, "role": …}, in UTF-16 units of the paper's text. Throws CommandError for a text
/// that the paper does not have, for unknown roles, and for marks that contradict each other.
std::vector<PaperMark> ReadMarks(const std::filesystem::path& file, const Paper& paper);

/// "question-number, question, …".
std::string RoleWordList();

}  // namespace quorvantis::cli
