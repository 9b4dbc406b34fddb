// SPDX-License-Identifier: MIT
// Commands that turn papers into questions, and those for the rules by which that is done.
#pragma once

namespace CLI {
class App;
}

namespace quorvantis::cli {

struct CommandContext;

void AddImport(CLI::App& app, CommandContext& context);
void AddRules(CLI::App& app, CommandContext& context);
void AddMatch(CLI::App& app, CommandContext& context);

}  // namespace quorvantis::cli
