// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamPaper.h"

#include <functional>
#include <vector>

namespace quorvantis {

/// A question that has another score since it got another number.
struct ScoreChange {
  int question = 0;  ///< its present number
  float before = 0;
  float now = 0;

  bool operator==(const ScoreChange&) const = default;
};

/// The questions 1 to `lastQuestion` whose scores have changed, because score ranges stay where they are.
/// `formerNumber` tells the former number of a question, or 0 for a new one.
std::vector<ScoreChange> ScoreChanges(const ExamPaper& exam, int lastQuestion,
                                      const std::function<int(int)>& formerNumber);

}  // namespace quorvantis
