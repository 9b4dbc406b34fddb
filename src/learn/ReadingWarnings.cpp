// SPDX-License-Identifier: MIT
#include "learn/ReadingWarnings.h"

namespace quorvantis {

std::vector<ReadingWarning> WarningsOf(const Paper& /*paper*/, const ImportSettings& /*rules*/,
                                       const PaperReading& /*reading*/) {
  return {};
}

std::u16string WarningText(const ReadingWarning& warning, const StringTable& /*strings*/) {
  return warning.text;
}

}  // namespace quorvantis
