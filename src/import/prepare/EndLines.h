// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace quorvantis {

/// "--- END ---", "Good luck!", "Viel Erfolg!": what ends a paper and is no part of its last question.
bool IsEndLine(std::u16string_view line);

}  // namespace quorvantis
