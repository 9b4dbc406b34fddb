// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// What a rule finds, in words: one line of ASCII for readers of "ImportExam.ini".
std::u16string RuleComment(std::u16string_view key, std::u16string_view value);

/// What a step of "Prepare" does, in words; empty for unknown steps.
std::u16string_view StepComment(std::u16string_view step);

}  // namespace quorvantis
