// SPDX-License-Identifier: MIT
#include "cli/Console.h"

#include "text/Utf.h"

#include <algorithm>
#include <ostream>

namespace quorvantis::cli {

void Console::Complain(std::string_view text) const {
  const auto isControl = [](char16_t unit) { return unit < 0x20 || (unit >= 0x7F && unit < 0xA0); };
  std::u16string line = Utf8ToUtf16(text);
  std::ranges::replace_if(line, isControl, u' ');
  err << "quorvantis-cli: " << Utf16ToUtf8(line) << std::endl;
}

}  // namespace quorvantis::cli
