// SPDX-License-Identifier: MIT
// What units must stand where a place of a program is to match. "Nothing" means that any can, or none needs
// to.
#pragma once

#include "regex/RegexProgram.h"

#include <optional>

namespace quorvantis {

/// The units that can come first at a place, in the direction of the program there.
std::optional<CharacterSet> FindFirstUnits(const RegexProgram& program, int place);

/// The units that can come second.
std::optional<CharacterSet> FindSecondUnits(const RegexProgram& program, int place);

/// The units that can stand on the other side of the position, for code that runs forward; nothing has to
/// stand before the start of the text.
std::optional<CharacterSet> FindUnitsBefore(const RegexProgram& program, int place);

}  // namespace quorvantis
