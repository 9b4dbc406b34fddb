// SPDX-License-Identifier: MIT
// The words that head the answers at the end of a paper, in the languages of papers.
#pragma once

#include <string_view>

namespace quorvantis {

/// How much a line looks like the heading of the answers at the end of a paper.
enum class AnswerHeading {
  None,
  Possible,  ///< has such a word among a few others: "Answers for the biology test"
  Clear,     ///< says nothing else: "ANSWER KEY:", "参考答案"
};

AnswerHeading AnswerHeadingOf(std::u16string_view line);

/// Whether a line can't be anything but such a heading: "Answers", but not "Answer the questions".
bool IsBareAnswerHeading(std::u16string_view line);

}  // namespace quorvantis
