// SPDX-License-Identifier: MIT
// The command that lists languages.
#pragma once

namespace CLI {
class App;
}

namespace quorvantis::cli {

struct CommandContext;

void AddLanguages(CLI::App& app, CommandContext& context);

}  // namespace quorvantis::cli
