// SPDX-License-Identifier: MIT
#pragma once

#include "bank/near/QuestionSketch.h"
#include "likeness/QuestionRelation.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace quorvantis {

class Progress;

/// A question of an older exam.
struct OlderQuestion {
  std::size_t exam = 0;  ///< a number of the caller's for its exam
  int number = 0;        ///< in that exam, from 1 on
  QuestionSketch sketch;
};

/// A question of the open exam was asked before.
struct EarlierUse {
  std::size_t question = 0;                             ///< its place in the open exam, from 0 on
  std::size_t older = 0;                                ///< place in the list of older questions
  QuestionRelation relation = QuestionRelation::Equal;  ///< the same or a variant
};

/// What the open exam has in common with an older one.
struct SharedPart {
  std::size_t exam = 0;
  std::size_t same = 0;      ///< questions of the open exam that the older one has, too (IsSameQuestion)
  std::size_t variants = 0;  ///< further ones that it has with other numbers, files or options
  double share = 0;          ///< of the open exam's questions with content that are the same, 0 to 1
};

struct ReuseReport {
  std::vector<EarlierUse> uses;   ///< by question, then the same before variants, then by place
  std::vector<SharedPart> exams;  ///< those with something in common, the most first, then by number
  std::size_t unused = 0;         ///< questions with content that no older exam has, variants apart
  bool isCancelled = false;       ///< then the report is incomplete
};

/// The texts of an older question, by its place in the list; nothing for one that does not count, such as one
/// of the open exam itself. Asked only for questions that are likely to be alike.
using OlderAt = std::function<std::optional<ComparedQuestion>(std::size_t older)>;

/// Tells for each question of the open exam where it was asked before, and how much each older exam has in
/// common with it. Tells the progress in questions of the open exam, and ends when it is cancelled.
ReuseReport SharedWithOlder(std::span<const ComparedQuestion> openExam, std::span<const OlderQuestion> older,
                            const OlderAt& olderAt, Progress& progress);

}  // namespace quorvantis
