// SPDX-License-Identifier: MIT
// How many of each thing an exam can have. For the lengths of its texts see ExamFields.h.
#pragma once

#include <cstddef>

namespace quorvantis {

constexpr int kMaxQuestions = 500;
constexpr std::size_t kQuestionSlots = kMaxQuestions + 1;  ///< slot 0 is never used
constexpr std::size_t kMaxAttachments = 10;                ///< per exam, and per question
constexpr std::size_t kOptionCount = 5;                    ///< options A to E
constexpr std::size_t kScoreRanges = 10;

constexpr bool IsQuestionNumber(int n) {
  return n >= 1 && n <= kMaxQuestions;
}

}  // namespace quorvantis
