// SPDX-License-Identifier: MIT
#include "cli/TerminalLine.h"

#include "text/Utf.h"

#include <algorithm>

namespace quorvantis::cli {

std::string TerminalLine(std::u16string_view text) {
  constexpr std::size_t kMost = 160;
  std::u16string line(text.substr(0, kMost));
  if (text.size() > kMost) line += u'\u2026';
  std::replace_if(
      line.begin(), line.end(), [](char16_t unit) { return unit < 0x20 || (unit >= 0x7F && unit < 0xA0); },
      u' ');
  return Utf16ToUtf8(line);
}

}  // namespace quorvantis::cli
