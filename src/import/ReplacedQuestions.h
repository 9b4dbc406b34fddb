// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamPaper.h"

#include <vector>

namespace quorvantis {

/// The numbers of the questions in `before` that `after` holds nowhere. Attached files do not count.
std::vector<int> MissingQuestions(const ExamPaper& before, const ExamPaper& after);

/// Those of the questions from `first` to `last` in `after` that begin their list of attached files as the
/// question of that number in `before` did.
std::vector<int> QuestionsWithEarlierFiles(const ExamPaper& before, const ExamPaper& after, int first,
                                           int last);

}  // namespace quorvantis
