// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LanguageLibraries.h"

#include <string>
#include <utility>
#include <vector>

namespace quorvantis {

/// The text of a control in a dialog that the program carries itself, both by number (see
/// platform/texts/DialogTextNumbers.h), or an empty one.
std::u16string BuiltInDialogText(int dialog, int control);

/// The text that a language library has for the control, or the built-in one. `library` may be null.
std::u16string DialogTextOf(const LanguageLibrary* library, int dialog, int control);

/// The dialogs and controls of all of them. Every language library that comes with the program has them too.
std::vector<std::pair<int, int>> BuiltInDialogControls();

}  // namespace quorvantis
