// SPDX-License-Identifier: MIT
#pragma once

#include "regex/SyntaxTree.h"

namespace quorvantis {

/// Merges two repetitions into one, such as "(?:x{0,3}){0,5}" into "x{0,15}", if the repeated text is one
/// unit and nothing can tell the difference. Nested repetitions can match the same text in a great many ways,
/// and would try them all.
void MergeNestedRepeat(RepeatNode& outer);

}  // namespace quorvantis
