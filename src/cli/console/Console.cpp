// SPDX-License-Identifier: MIT
#include "cli/console/Console.h"

#include "cli/console/TerminalLine.h"
#include "text/Utf.h"

#include <ostream>

namespace quorvantis::cli {

void Console::Complain(std::string_view text) const {
  err << "quorvantis-cli: " << TerminalText(Utf8ToUtf16(text)) << std::endl;
}

void Console::Tell(std::string_view text) const {
  err << TerminalText(Utf8ToUtf16(text)) << '\n';
}

}  // namespace quorvantis::cli
