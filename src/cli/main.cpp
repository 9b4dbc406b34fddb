// SPDX-License-Identifier: MIT
#include "cli/CommandLine.h"

#include <iostream>

int main(int argumentCount, char** arguments) {
  std::ios::sync_with_stdio(false);
  quorvantis::cli::Console console{std::cin, std::cout, std::cerr};
  return quorvantis::cli::RunCommandLine(argumentCount, arguments, console);
}
