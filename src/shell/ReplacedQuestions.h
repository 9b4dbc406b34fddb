// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamPaper.h"

#include <vector>

namespace quorvantis {

/// The numbers of the questions in `before` that `after` holds nowhere. Attached files do not count.
std::vector<int> MissingQuestions(const ExamPaper& before, const ExamPaper& after);

}  // namespace quorvantis
