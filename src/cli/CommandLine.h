// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/Console.h"

namespace quorvantis::cli {

/// Runs quorvantis-cli and returns its exit status: 0 success, 1 the command failed, 2 wrong usage.
int RunCommandLine(int argumentCount, const char* const* arguments, Console& console);

}  // namespace quorvantis::cli
