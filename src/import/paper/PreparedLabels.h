// SPDX-License-Identifier: MIT
// The labels that steps put where a paper has none of its own, or none that a rule could tell from text. No
// paper has them, so that rules can rely on them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quorvantis {

inline constexpr char16_t kPreparedOpen = u'\u27E6';   // ⟦
inline constexpr char16_t kPreparedClose = u'\u27E7';  // ⟧

/// In front of an answer, at the beginning of a line: "⟦=⟧ B".
inline constexpr std::u16string_view kPreparedKey = u"\u27E6=\u27E7";

/// In front of a question: "⟦12⟧".
std::u16string PreparedNumber(int number);

/// In front of an option: "⟦C⟧" for index 2; up to "⟦J⟧".
std::u16string PreparedOption(std::size_t index);

/// What the rules of a repository must find, as patterns.
inline constexpr std::u16string_view kPreparedKeyPattern = u"\u27E6=\u27E7";
inline constexpr std::u16string_view kPreparedNumberPattern = u"\u27E6[0-9]+\u27E7";

}  // namespace quorvantis
