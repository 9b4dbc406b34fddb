// SPDX-License-Identifier: MIT
#pragma once

#include "bank/search/BankSearch.h"
#include "model/ExamQuestion.h"

namespace quorvantis {

/// Whether the text and the options of a question are those that the bank shows. The index keeps texts as
/// UTF-8, where surrogates without their other half are other characters.
bool IsStillSo(const ExamQuestion& now, const BankQuestion& question);

}  // namespace quorvantis
