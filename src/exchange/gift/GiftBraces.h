// SPDX-License-Identifier: MIT
// Braces hold the answers of a question. Authors also leave braces of formulas and code unprotected, and
// forget the blank line between two questions; what is meant is told from what stands in and around them.
#pragma once

#include "text/TextSpan.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace quorvantis {

/// The first unprotected character of `wanted` in `text` from `from` on that is not within braces; npos if
/// there is none.
std::size_t FindOutsideBraces(std::u16string_view text, std::u16string_view wanted, std::size_t from = 0);

/// Whether this is a word for true or false, with or without feedback.
bool IsTrueOrFalse(std::u16string_view answers);

/// What stands within the braces of answers in the text of one question, without the braces.
std::vector<TextSpan> GiftAnswerPlaces(std::u16string_view text);

/// Where the first unprotected brace is that does not enclose one of these answers; npos if there is none.
std::size_t FindBareBrace(std::u16string_view text, const std::vector<TextSpan>& answers);

/// A block cut where a line below answers begins another question: it has answers of its own, and does not
/// go on with the sentence.
std::vector<std::u16string_view> GiftQuestions(std::u16string_view block);

}  // namespace quorvantis
