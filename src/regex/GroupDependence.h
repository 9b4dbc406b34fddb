// SPDX-License-Identifier: MIT
#pragma once

#include "regex/RegexProgram.h"

namespace quorvantis {

/// Removes the rows in the memory of failures from every instruction that can lead to a back reference or a
/// condition on a group: whether those succeed depends on more than the position.
void ForgetWhatDependsOnGroups(RegexProgram& program);

}  // namespace quorvantis
