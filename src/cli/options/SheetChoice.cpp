// SPDX-License-Identifier: MIT
#include "cli/options/SheetChoice.h"

#include <vector>

namespace quorvantis::cli {

void AddSheetChoice(CLI::App& command, SheetChoice& choice, CLI::Option* other) {
  std::vector<CLI::Option*> flags;
  const auto add = [&](const char* name, Sheet sheet, const char* description) {
    flags.push_back(command.add_flag_callback(
        name, [&choice, sheet] { choice.sheet = sheet; }, description));
  };
  add("--paper", Sheet::Paper, "The questions, laid out for paper");
  add("--key", Sheet::Key, "The right answers");
  add("--sheet", Sheet::Answers, "The sheet to answer on");
  add("--solutions", Sheet::Solutions, "The questions with the right answers");
  CLI::Option* large =
      command.add_flag("--large-print", choice.largePrint, "18 points and wide spacing, the same numbers");
  for (CLI::Option* flag : flags) {
    for (CLI::Option* another : flags) {
      if (flag != another) flag->excludes(another);
    }
    if (other != nullptr) flag->excludes(other);
  }
  if (other != nullptr) large->excludes(other);
}

}  // namespace quorvantis::cli
