// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace quorvantis {

/// What a part of a paper is. The values are the keys 1 to 8 of the studio, and the indices of its colours.
enum class PaperRole {
  None = 0,  ///< nothing has taken it
  QuestionNumber = 1,
  Question = 2,
  OptionLabel = 3,
  Option = 4,
  AnswerLabel = 5,
  Answer = 6,
  Heading = 7,
  NotExam = 8,  ///< not part of the exam
};

inline constexpr std::size_t kPaperRoles = 9;

}  // namespace quorvantis
