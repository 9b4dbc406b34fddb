// SPDX-License-Identifier: MIT
// What commands use to say which arguments they take.
#pragma once

#include "cli/console/Console.h"
#include "cli/options/CommonOptions.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <memory>
#include <optional>
#include <set>
#include <string>

namespace quorvantis::cli {

/// What is common to all commands of one run. It outlives the parser, whose callbacks refer to it; what the
/// options of one command are bound to, its callback owns.
struct CommandContext {
  Console& console;
  CommonOptions common = {};
  std::set<const CLI::Option*> mayBeEmpty = {};  ///< options for which an empty text is a valid value
};

/// The options of every command; they may also precede the command.
void AddCommonOptions(CLI::App& app, CommonOptions& options);

CLI::App* AddCommand(CLI::App& app, CommandContext& context, const char* name, const char* description);

/// A command whose first argument is one of the commands that the caller adds to it.
CLI::App& AddCommandGroup(CLI::App& app, CommandContext& context, const char* name, const char* description);

/// An argument that names a file or folder.
void AddPath(CLI::App& command, const char* name, std::filesystem::path& path, const char* description);

/// An option that may be empty, which differs from being absent.
CLI::Option* AddText(CLI::App& command, const char* name, std::optional<std::string>& text,
                     const char* description, const char* type);

/// Digits only: the reader of numbers would accept "0x10" and "010" as other numbers.
CLI::Validator IsDecimal();

}  // namespace quorvantis::cli
