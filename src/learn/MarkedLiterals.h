// SPDX-License-Identifier: MIT
// Patterns for single places that a teacher has marked and that no family of layouts has: "a question begins
// with these words".
#pragma once

#include "learn/PaperLearner.h"
#include "learn/RoleLookup.h"

#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// For rule "PreQuestion": what stands before the marked question in its line, or the marked number. Finds
/// that one place, if the paper says nothing else with the same words.
std::u16string QuestionBeginPattern(std::u16string_view paper, const PaperMark& mark);

/// For the label of an option in rule "Pattern", the same way.
std::u16string OptionBeginPattern(std::u16string_view paper, const PaperMark& mark);

/// Which option of its question a marked one must be, by the labels before it; nothing outside questions.
std::optional<std::size_t> OptionIndexOf(const std::vector<RolePart>& roles, const PaperMark& mark);

/// What the line of a mark begins with.
std::u16string LineBeginPattern(std::u16string_view paper, const PaperMark& mark);

}  // namespace quorvantis
