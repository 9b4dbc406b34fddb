// SPDX-License-Identifier: MIT
#include "cli/console/TerminalLine.h"

#include "text/ControlCharacters.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis::cli {

std::string TerminalText(std::u16string_view text) {
  std::u16string line(text);
  std::replace_if(line.begin(), line.end(), IsControl, u' ');
  return Utf16ToUtf8(line);
}

std::string TerminalLine(std::u16string_view text) {
  constexpr std::size_t kMost = 160;
  std::u16string line(text.substr(0, kMost));
  if (text.size() > kMost) line += u'\u2026';
  return TerminalText(line);
}

}  // namespace quorvantis::cli
