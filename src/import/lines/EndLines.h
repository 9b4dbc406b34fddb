// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace quorvantis {

/// "--- END ---", "Good luck!", "Viel Erfolg!": what ends a paper and is no part of its last question.
bool IsEndLine(std::u16string_view line);

/// Whether a line that a blank one sets off at the very end may be such a wish in other words. Sentences and
/// what asks or announces something are none.
bool CanBeWish(std::u16string_view line);

}  // namespace quorvantis
