// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/form/ExchangeNotes.h"
#include "exchange/form/ExchangedExam.h"
#include "platform/StringTable.h"

#include <vector>

namespace quorvantis {

/// Makes `question` a choice between "True" and "False", in the language in use. `answers` are those of the
/// file, of which that is right which scores most. Two answers whose words say neither stay as they are; if
/// what they say makes no sense, no option is right, which is told.
void TakeTrueFalse(const std::vector<ExchangedOption>& answers, const StringTable& strings,
                   ExchangedQuestion& question, ExchangeNotes& notes);

}  // namespace quorvantis
