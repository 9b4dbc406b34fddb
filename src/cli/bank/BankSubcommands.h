// SPDX-License-Identifier: MIT
// The commands for the bank of all exams.
#pragma once

namespace CLI {
class App;
}

namespace quorvantis::cli {

struct CommandContext;

void AddBank(CLI::App& app, CommandContext& context);
void AddBankLike(CLI::App& bank, CommandContext& context);  ///< a command of `bank`
void AddBankDraw(CLI::App& bank, CommandContext& context);  ///< likewise
/// After the others of group "bank", to which it adds.
void AddBankTags(CLI::App& app, CommandContext& context);

}  // namespace quorvantis::cli
