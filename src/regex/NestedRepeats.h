// SPDX-License-Identifier: MIT
#pragma once

#include "regex/SyntaxTree.h"

namespace quorvantis {

/// Makes one repetition of two, such as "x{0,15}" of "(?:x{0,3}){0,5}", where the text that is repeated is
/// one unit and nothing can tell the difference. Nested repetitions have a great many ways to match the same
/// text, and would try them all.
void MergeNestedRepeat(RepeatNode& outer);

}  // namespace quorvantis
