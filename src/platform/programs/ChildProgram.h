// SPDX-License-Identifier: MIT
#pragma once

#include "platform/programs/ChildProcess.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>

namespace quorvantis {

/// Runs a program and waits for its end, at most for `limit`; `isCancelled`, which may be empty, is asked
/// several times a second. For who has no event loop, like the command line, and for the commands of the
/// window that wait.
ChildEnd RunChildProgram(const ChildOrder& order, std::chrono::milliseconds limit,
                         const std::function<bool()>& isCancelled);

/// The full path of a program in the folders of PATH; empty when there is none.
std::filesystem::path FindProgram(const std::string& name);

}  // namespace quorvantis
