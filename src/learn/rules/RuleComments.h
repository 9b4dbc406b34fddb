// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// What a rule finds, in words: one line of ASCII for readers of "ImportExam.ini".
std::u16string RuleComment(std::u16string_view key, std::u16string_view value);

}  // namespace quorvantis
