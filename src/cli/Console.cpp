// SPDX-License-Identifier: MIT
#include "cli/Console.h"

#include <algorithm>
#include <ostream>

namespace quorvantis::cli {

void Console::Complain(std::string_view text) const {
  std::string line(text);
  std::ranges::replace_if(
      line, [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, ' ');
  err << "quorvantis-cli: " << line << std::endl;
}

}  // namespace quorvantis::cli
