// SPDX-License-Identifier: MIT
#pragma once

#include "regex/RegexProgram.h"

namespace quorvantis {

/// Takes the rows in the memory of failures from every instruction from which a back reference or a condition
/// on a group can be reached: whether those succeed depends on more than the position.
void ForgetWhatDependsOnGroups(RegexProgram& program);

}  // namespace quorvantis
