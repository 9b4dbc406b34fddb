// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace quorvantis {

/// Another program and what it is told; no shell is in between.
struct ChildProgram {
  std::filesystem::path program;
  std::vector<std::string> arguments;
  std::filesystem::path temporaryFolder;  ///< where it may leave files behind
  std::chrono::milliseconds limit{60'000};
  std::function<bool()> isCancelled;  ///< asked several times a second; may be empty
};

enum class ChildEnd { Succeeded, Failed, NotStarted, TimedOut, Cancelled };

/// Runs a program at low priority and waits for its end. It has a process group of its own, no input and
/// no output. Whatever it has started ends with it, and all of it with this program (see Leftover). The
/// command line has no event loop, so Qt's processes are of no use here.
ChildEnd RunChildProgram(const ChildProgram& child);

/// The full path of a program in the folders of PATH; empty when there is none.
std::filesystem::path FindProgram(const std::string& name);

}  // namespace quorvantis
