// SPDX-License-Identifier: MIT
// The commands of the script language that search the exam.
#pragma once

#include "cli/edit/EditSession.h"

#include <vector>

namespace quorvantis::cli {

/// Prints a line for each hit, then their number. Arguments: the text, then switches.
void Find(EditSession& session, const std::vector<ScriptArgument>& arguments);

/// Replaces all hits; prints how many, and what was left alone. Arguments: the text, its replacement, then
/// switches.
void Replace(EditSession& session, const std::vector<ScriptArgument>& arguments);

}  // namespace quorvantis::cli
