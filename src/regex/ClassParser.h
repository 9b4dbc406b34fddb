// SPDX-License-Identifier: MIT
#pragma once

#include "regex/CharacterSet.h"
#include "regex/PatternCursor.h"

namespace quorvantis {

/// Reads a character class with the cursor after its "[", and leaves it after the "]". A "]" that comes first
/// is a member, as is a "-" that does not stand between two units. Throws RegexError.
CharacterSet ParseClass(PatternCursor& cursor, bool ignoreCase);

}  // namespace quorvantis
