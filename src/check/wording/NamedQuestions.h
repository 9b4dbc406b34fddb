// SPDX-License-Identifier: MIT
#pragma once

#include "check/wording/WordedText.h"

#include <optional>
#include <string_view>
#include <vector>

namespace quorvantis {

/// The number of a question, 1 to 500, in the digits of schools; nothing for anything else.
std::optional<int> QuestionNumberOf(std::u16string_view word);

/// The numbers of questions that a text names. In the order of the text, each once.
std::vector<int> NamedQuestionsIn(const WordedText& text);

}  // namespace quorvantis
