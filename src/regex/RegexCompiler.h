// SPDX-License-Identifier: MIT
#pragma once

#include "regex/RegexParser.h"
#include "regex/RegexProgram.h"

namespace quorvantis {

/// The second stage of compilation: from a tree to a program. Throws RegexError for references to groups that
/// do not exist, and for patterns whose program would be too large.
RegexProgram CompileProgram(const ParsedPattern& pattern, bool rightToLeft);

}  // namespace quorvantis
