// SPDX-License-Identifier: MIT
// The words for the choices and reasons of a plan, in "plan.json" and on the command line.
#pragma once

#include "versions/plan/PinnedParts.h"
#include "versions/plan/VersionRequest.h"

#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

std::string MovesWord(QuestionMoves moves);
std::optional<QuestionMoves> MovesOfWord(std::string_view word);

std::string ReasonWord(PinReason reason);
std::optional<PinReason> ReasonOfWord(std::string_view word);

}  // namespace quorvantis
