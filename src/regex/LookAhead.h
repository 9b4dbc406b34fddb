// SPDX-License-Identifier: MIT
#pragma once

#include "regex/RegexProgram.h"

namespace quorvantis {

/// The third stage of compilation: finds the units with which each way of a choice can begin, so that one
/// look at the text decides most choices; where repetitions can end; and where a match can begin at all.
void LookAhead(RegexProgram& program);

}  // namespace quorvantis
