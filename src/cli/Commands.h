// SPDX-License-Identifier: MIT
// The commands of quorvantis-cli. Each function adds one, with its options, its help and what it does. A
// command throws CommandError when it fails.
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
void AddScore(CLI::App& app, CommandContext& context);
void AddExport(CLI::App& app, CommandContext& context);
void AddConvert(CLI::App& app, CommandContext& context);
void AddEdit(CLI::App& app, CommandContext& context);
void AddRecover(CLI::App& app, CommandContext& context);
void AddLanguages(CLI::App& app, CommandContext& context);
void AddImport(CLI::App& app, CommandContext& context);
void AddRules(CLI::App& app, CommandContext& context);
void AddVersions(CLI::App& app, CommandContext& context);
void AddBank(CLI::App& app, CommandContext& context);
void AddBankLike(CLI::App& bank, CommandContext& context);  ///< a command of `bank`
void AddBankDraw(CLI::App& bank, CommandContext& context);  ///< likewise
void AddMatch(CLI::App& app, CommandContext& context);
/// After the others of group "bank", to which it adds.
void AddBankTags(CLI::App& app, CommandContext& context);

}  // namespace quorvantis::cli
