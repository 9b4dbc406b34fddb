// SPDX-License-Identifier: MIT
#pragma once

#include "shell/ImportCommand.h"

#include <string>
#include <vector>

namespace quorvantis {

/// What an import has read, one line, and then what a person should look at: rules that matched nothing,
/// parts of the paper that became no question, and questions that may not be what the paper meant.
std::vector<std::u16string> ImportSummary(const ImportReport& report);

}  // namespace quorvantis
