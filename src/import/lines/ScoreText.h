// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace quorvantis {

/// Whether a text says what a question is worth, and nothing else: "5 points", "(2 marks)", "[每题3分]",
/// "/10". A number alone is one, too.
bool IsScoreText(std::u16string_view text);

/// Whether a line is a field for a teacher to fill in: "____/5", "Marks: ______", "得分：", "评卷人".
bool IsScoreField(std::u16string_view line);

/// Whether a line says what several questions are worth together: "(8 x 2) (16)", "[20]". A smaller number
/// alone may be the right option.
bool IsScoreSum(std::u16string_view line);

}  // namespace quorvantis
