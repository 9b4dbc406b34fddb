// SPDX-License-Identifier: MIT
// The options that the commands about rules of import share.
#pragma once

#include <CLI/CLI.hpp>

#include <filesystem>
#include <string>

namespace quorvantis::cli {

/// "--rules FILE".
CLI::Option* AddRulesFile(CLI::App& command, std::filesystem::path& rules);

/// "--repository NAME", for one that there is.
CLI::Option* AddRepositoryName(CLI::App& command, std::string& repository);

/// "--marks FILE".
CLI::Option* AddMarks(CLI::App& command, std::filesystem::path& marks);

/// How marks are written, for the help.
std::string MarksHelp();

}  // namespace quorvantis::cli
