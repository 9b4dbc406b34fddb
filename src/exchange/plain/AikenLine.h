// SPDX-License-Identifier: MIT
// What a line of Aiken is by its beginning.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace quorvantis {

inline constexpr std::u16string_view kAikenAnswer = u"ANSWER:";

/// What stands behind "ANSWER:"; nothing if the line is no answer.
std::optional<std::u16string_view> AnswerOfLine(std::u16string_view line);

/// A line that begins with a letter and "." or ")".
struct AikenOption {
  std::size_t letter = 0;    ///< from 0 on
  bool standsApart = false;  ///< a blank follows
  std::u16string_view text;
};

/// Nothing if the line is no option. Small letters are letters, too.
std::optional<AikenOption> OptionOfLine(std::u16string_view line);

}  // namespace quorvantis
