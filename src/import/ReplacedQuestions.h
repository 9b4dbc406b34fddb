// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamPaper.h"

#include <vector>

namespace quorvantis {

/// The numbers of the questions in `before` that are nowhere in `after`. Attached files are ignored.
std::vector<int> MissingQuestions(const ExamPaper& before, const ExamPaper& after);

/// The numbers of the questions from `first` to `last` in `after` whose list of attached files begins like
/// that of the same question in `before`.
std::vector<int> QuestionsWithEarlierFiles(const ExamPaper& before, const ExamPaper& after, int first,
                                           int last);

}  // namespace quorvantis
