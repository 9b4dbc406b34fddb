// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvantis::cli {

/// A text on one line of a terminal, as UTF-8: control characters become blanks.
std::string TerminalText(std::u16string_view text);

/// A text of a stranger's file on one line of a terminal, likewise; of more than 160 UTF-16 units the
/// beginning is shown.
std::string TerminalLine(std::u16string_view text);

}  // namespace quorvantis::cli
