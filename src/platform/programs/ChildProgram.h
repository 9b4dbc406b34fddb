// SPDX-License-Identifier: MIT
#pragma once

#include "platform/programs/ChildProcess.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>

namespace quorvantis {

/// Runs a program and waits for it, at most for `limit`; `isCancelled`, which may be empty, is polled several
/// times a second. For callers without an event loop, like the command line, and for window commands that
/// wait.
ChildEnd RunChildProgram(const ChildOrder& order, std::chrono::milliseconds limit,
                         const std::function<bool()>& isCancelled);

/// How a program ended, and its standard output.
struct ChildOutput {
  ChildEnd end;
  std::string output;
};

/// Runs a program for its output, at most for `limit`. One that writes more than `mostBytes` counts as
/// failed. The order must say that its output is read.
ChildOutput RunForOutput(const ChildOrder& order, std::chrono::milliseconds limit, std::size_t mostBytes);

/// The full path of a program in the folders of PATH; empty if not found.
std::filesystem::path FindProgram(const std::string& name);

}  // namespace quorvantis
