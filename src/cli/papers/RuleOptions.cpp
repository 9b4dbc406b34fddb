// SPDX-License-Identifier: MIT
#include "cli/papers/RuleOptions.h"

#include "cli/papers/PaperMarksFile.h"

namespace quorvantis::cli {

CLI::Option* AddRulesFile(CLI::App& command, std::filesystem::path& rules) {
  return command
      .add_option("--rules", rules,
                  "The file with the rules (default: ImportExam.ini of the\napplication folder, or beside "
                  "the program)")
      ->type_name("FILE");
}

CLI::Option* AddRepositoryName(CLI::App& command, std::string& repository) {
  return command
      .add_option("--repository", repository,
                  "The beginning of the repository's name, or # and its section's number")
      ->type_name("NAME");
}

CLI::Option* AddMarks(CLI::App& command, std::filesystem::path& marks) {
  return command.add_option("--marks", marks, "What parts of the paper are (JSON)")->type_name("FILE");
}

std::string MarksHelp() {
  return "Marks are a list of {\"text\": \"B)\", \"nth\": 1, \"role\": \"option-label\"}, or with \"begin\" "
         "and "
         "\"end\" instead,\nin UTF-16 units of the text that --text writes. Roles: " +
         RoleWordList() + ".";
}

}  // namespace quorvantis::cli
