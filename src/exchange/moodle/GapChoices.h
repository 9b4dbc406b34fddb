// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/form/ExchangeNotes.h"
#include "exchange/form/ExchangedExam.h"

#include <string>
#include <vector>

namespace quorvantis {

/// Puts a blank in each place of `question.text` that says "[[1]]", where the number is that of a choice from
/// 1 on, and the choices behind the text, which is told.
void TakeGaps(const std::vector<std::u16string>& choices, ExchangedQuestion& question, ExchangeNotes& notes);

}  // namespace quorvantis
