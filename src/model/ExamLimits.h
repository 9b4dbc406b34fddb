// SPDX-License-Identifier: MIT
// The fixed sizes of an exam. Lengths are in UTF-16 code units.
#pragma once

#include <cstddef>

namespace quorvantis {

constexpr int kMaxQuestions = 500;
constexpr std::size_t kQuestionSlots = kMaxQuestions + 1;  ///< slot 0 is never used
constexpr std::size_t kMaxAttachments = 10;                ///< of the exam, and of each question
constexpr std::size_t kOptionCount = 5;                    ///< options A to E
constexpr std::size_t kScoreRanges = 10;

constexpr std::size_t kMaxTitle = 256;
constexpr std::size_t kMaxQuestionText = 4096;
constexpr std::size_t kMaxOptionText = 256;
constexpr std::size_t kMaxFillInAnswer = 1024;
constexpr std::size_t kMaxEssayAnswer = 4096;

/// A fill-in answer with more units than this is a long one (see LongAnswerFlags).
constexpr std::size_t kMaxShortAnswer = 256;

constexpr bool IsQuestionNumber(int n) {
  return n >= 1 && n <= kMaxQuestions;
}

}  // namespace quorvantis
