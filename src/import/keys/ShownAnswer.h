// SPDX-License-Identifier: MIT
// Answers that stand in the text of a question where pupils would read them.
#pragma once

#include "text/TextSpan.h"

#include <optional>
#include <string_view>

namespace quorvantis {

/// An answer within the text of a question.
struct ShownAnswer {
  TextSpan whole;   ///< what pupils must not see: brackets, label and the blanks or line end before them, too
  TextSpan answer;  ///< within it
};

/// The only answer with a label in brackets at the end of a line: "(Answer: B)", "（答案：疑是地上霜）".
std::optional<ShownAnswer> LabelledAnswerIn(std::u16string_view text, TextSpan body);

/// A word for true or false that ends a statement: "The sun is a star. – true", or on a line of its own.
std::optional<ShownAnswer> JudgementAtEndOf(std::u16string_view text, TextSpan statement);

}  // namespace quorvantis
