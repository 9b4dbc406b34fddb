// SPDX-License-Identifier: MIT
#pragma once

#include "regex/CharacterSet.h"

#include <string_view>

namespace quorvantis {

/// The units of a POSIX class ("alnum", "blank", …) or of none for an unknown name. ASCII only: a unit above
/// is in no class.
CharacterSet PosixClass(std::u16string_view name);

/// The units that "\d", "\s" and "\w" stand for.
CharacterSet DigitClass();
CharacterSet SpaceClass();
CharacterSet WordClass();

}  // namespace quorvantis
