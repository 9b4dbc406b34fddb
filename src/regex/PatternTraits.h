// SPDX-License-Identifier: MIT
// What the code of a program tells about all of its matches. Both answers are on the safe side: false may
// also mean that it is not known.
#pragma once

#include "regex/RegexProgram.h"

namespace quorvantis {

/// Whether a text that is matched at one place is matched at every place: nothing but its own units counts.
bool MatchesAnywhere(const RegexProgram& program);

/// Whether putting `unit` (which is no line break) into a text, in the place of a match or of nothing, can
/// bring up no match that starts further left than there, if there was none before.
///
/// That holds for programs where a match is a path that takes units, never `unit` itself. In the new text,
/// such a path from further left ends before the new unit or at it. So all that it took was there before; and
/// what it asked about its places was no less true: line starts and look-behind ask for what stands before a
/// place, which is the same, and line ends or the end of the text do not come before the new unit. (Except
/// for a line start between CR and LF: see the caller.) Negative look-ahead, word boundaries, and bodies
/// whose choices are dropped can become true by what they do not find any more; with them the answer is
/// false.
bool IsBarrier(const RegexProgram& program, char16_t unit);

}  // namespace quorvantis
