// SPDX-License-Identifier: MIT
#pragma once

#include "text/TextSpan.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// What stands before the answers of a paper's questions, "Answer:" for example.
struct AnswerLabelFamily {
  std::u16string label{};     ///< as it is written the first time, with its colon or bracket
  std::size_t questions = 0;  ///< that have it
  double keys = 0;            ///< share of them in which what follows can be the key of a choice question
  bool standsWithinLines = false;
  bool isWord = false;  ///< says "answer", or the like, in some language
};

/// Texts that many of these bodies (the spans behind the numbers of questions) have in front of something
/// that can be an answer, the likeliest first.
std::vector<AnswerLabelFamily> FindAnswerLabels(std::u16string_view text,
                                                const std::vector<TextSpan>& bodies);

/// Whether a text is short enough, and made of the right units, to be the key of a choice or true/false
/// question.
bool LooksLikeKey(std::u16string_view text);

}  // namespace quorvantis
