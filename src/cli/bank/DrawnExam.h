// SPDX-License-Identifier: MIT
#pragma once

#include "bank/search/BankSearch.h"
#include "cli/bank/BankSession.h"

#include <filesystem>
#include <vector>

namespace quorvantis::cli {

/// Makes an exam of questions of the bank, in this order, with their attached files. Its title is the name of
/// the file. Throws CommandError, with nothing written, if `target` exists or if a question is no longer as
/// the index knows it.
void WriteDrawnExam(BankSession& bank, const std::vector<BankQuestion>& questions,
                    const std::filesystem::path& target);

}  // namespace quorvantis::cli
