// SPDX-License-Identifier: MIT
#include "cli/CommandLine.h"
#include "platform/posix/Leftover.h"

#include <csignal>
#include <iostream>

int main(int argumentCount, char** arguments) {
  std::ios::sync_with_stdio(false);
  std::signal(SIGPIPE,
              SIG_IGN);  // a closed pipe becomes a write error, so the clean-up still runs
  quorvantis::RemoveLeftoversOnSignals();
  quorvantis::cli::Console console{std::cin, std::cout, std::cerr};
  return quorvantis::cli::RunCommandLine(argumentCount, arguments, console);
}
