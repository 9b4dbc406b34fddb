// SPDX-License-Identifier: MIT
// The commands that make and verify versions of an exam.
#pragma once

namespace CLI {
class App;
}

namespace quorvantis::cli {

struct CommandContext;

void AddVersions(CLI::App& app, CommandContext& context);

}  // namespace quorvantis::cli
