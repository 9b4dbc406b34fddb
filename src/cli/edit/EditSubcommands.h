// SPDX-License-Identifier: MIT
// Commands that change an exam as a user of the window would.
#pragma once

namespace CLI {
class App;
}

namespace quorvantis::cli {

struct CommandContext;

void AddEdit(CLI::App& app, CommandContext& context);
void AddScore(CLI::App& app, CommandContext& context);

}  // namespace quorvantis::cli
