// SPDX-License-Identifier: MIT
// The commands of the script language that move, duplicate and take whole questions.
#pragma once

#include "cli/edit/EditSession.h"

#include <vector>

namespace quorvantis::cli {

/// "move A B"
void MoveQuestion(EditSession& session, const std::vector<ScriptArgument>& arguments);

/// "duplicate N"
void DuplicateQuestion(EditSession& session, const std::vector<ScriptArgument>& arguments);

/// "take FILE M-K [after N]"
void TakeQuestions(EditSession& session, const std::vector<ScriptArgument>& arguments);

}  // namespace quorvantis::cli
