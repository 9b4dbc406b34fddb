// SPDX-License-Identifier: MIT
#include "platform/posix/StandardErrorDebug.h"

#include "text/Utf.h"

#include <cstdlib>
#include <iostream>

namespace quorvantis {

void StandardErrorDebug::Line(std::u16string_view text) {
  constexpr std::string_view kPrefix = "[---Quorvantis---]:";
  if (!enabled_) return;
  const std::string line = Utf16ToUtf8(text);
  std::cerr << (line.starts_with(kPrefix) ? "" : kPrefix) << line << std::endl;
}

bool DebugAskedFor() {
  const char* value = std::getenv("QV_DEBUG");  // NOLINT(concurrency-mt-unsafe): nothing sets it
  return value != nullptr && std::string_view(value) == "1";
}

}  // namespace quorvantis
