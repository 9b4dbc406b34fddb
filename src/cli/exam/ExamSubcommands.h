// SPDX-License-Identifier: MIT
// Commands that read, write or print an exam file.
#pragma once

namespace CLI {
class App;
}

namespace quorvantis::cli {

struct CommandContext;

void AddShow(CLI::App& app, CommandContext& context);
void AddCheck(CLI::App& app, CommandContext& context);
void AddBuild(CLI::App& app, CommandContext& context);
void AddUnpack(CLI::App& app, CommandContext& context);
void AddPreview(CLI::App& app, CommandContext& context);
void AddPrint(CLI::App& app, CommandContext& context);
void AddPdf(CLI::App& app, CommandContext& context);
void AddKey(CLI::App& app, CommandContext& context);
void AddExport(CLI::App& app, CommandContext& context);
void AddConvert(CLI::App& app, CommandContext& context);
void AddRecover(CLI::App& app, CommandContext& context);

}  // namespace quorvantis::cli
