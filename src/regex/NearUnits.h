// SPDX-License-Identifier: MIT
// The units that must be near the position where a place of a program matches. "Nothing" means any unit, or
// none.
#pragma once

#include "regex/RegexProgram.h"

#include <optional>

namespace quorvantis {

/// The units that can come first at a place, in the direction of the program there.
std::optional<CharacterSet> FindFirstUnits(const RegexProgram& program, int place);

/// The units that can come second.
std::optional<CharacterSet> FindSecondUnits(const RegexProgram& program, int place);

/// The units that can be on the other side of the position, for code that runs forward; the start of the text
/// also qualifies.
std::optional<CharacterSet> FindUnitsBefore(const RegexProgram& program, int place);

}  // namespace quorvantis
