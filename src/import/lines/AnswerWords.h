// SPDX-License-Identifier: MIT
// The words for "answer", "option", "part" and "correct" in the languages of papers.
#pragma once

#include <cstddef>
#include <string_view>

namespace quorvantis {

/// Whether a line is, or begins with, the title of a part: "Part B", "二、填空题", "Section 2: essays".
bool IsPartTitle(std::u16string_view line);

/// How many units at the begin of an answer only lead to it: "Option B", "The answer is B", "答案：B".
std::size_t AnswerLeadSize(std::u16string_view text);

/// Whether the text, without brackets around it, is a word for "correct".
bool IsWordForCorrect(std::u16string_view text);

/// The size of a word for "and" that the text begins with, 0 for none.
std::size_t AndWordSize(std::u16string_view text);

/// The same for "or".
std::size_t OrWordSize(std::u16string_view text);

/// The index that a word like "second" or "第二个" names, without words around it; -1 for none.
int OrdinalIndex(std::u16string_view text);

}  // namespace quorvantis
