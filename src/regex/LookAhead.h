// SPDX-License-Identifier: MIT
#pragma once

#include "regex/RegexProgram.h"

namespace quorvantis {

/// The third stage of compilation: tells the choices of a program which units can come first on either way,
/// so that most of them are decided by one look at the text; repetitions where they can end; and where a
/// match can begin at all.
void LookAhead(RegexProgram& program);

}  // namespace quorvantis
