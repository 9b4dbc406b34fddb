// SPDX-License-Identifier: MIT
#pragma once

#include "regex/CharacterSet.h"
#include "regex/PatternCursor.h"

#include <optional>

namespace quorvantis {

/// The class that a letter after "\" stands for (such as "\d"), or nothing.
std::optional<CharacterSet> ClassEscape(char16_t letter);

/// The unit that a letter after "\" stands for, with the cursor after the letter: a control character, a
/// character code, or the letter itself. `\b` is not among them.
char16_t UnitEscape(char16_t letter, PatternCursor& cursor);

}  // namespace quorvantis
