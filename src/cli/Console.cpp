// SPDX-License-Identifier: MIT
#include "cli/Console.h"

#include "text/Utf.h"

#include <algorithm>
#include <ostream>

namespace quorvantis::cli {
namespace {

/// In one line.
std::string OneLine(std::string_view text) {
  const auto isControl = [](char16_t unit) { return unit < 0x20 || (unit >= 0x7F && unit < 0xA0); };
  std::u16string line = Utf8ToUtf16(text);
  std::ranges::replace_if(line, isControl, u' ');
  return Utf16ToUtf8(line);
}

}  // namespace

void Console::Complain(std::string_view text) const {
  err << "quorvantis-cli: " << OneLine(text) << std::endl;
}

void Console::Tell(std::string_view text) const {
  err << OneLine(text) << '\n';
}

}  // namespace quorvantis::cli
