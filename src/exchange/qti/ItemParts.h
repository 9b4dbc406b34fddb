// SPDX-License-Identifier: MIT
// What readers of both versions of QTI make of parts that an exam has in another form.
#pragma once

#include "exchange/form/Format.h"

#include <string_view>
#include <vector>

namespace quorvantis {

/// Which options are right, given the score of each, in any unit. `addUp`: several can be chosen and their
/// scores add up, so all that earn something are right. Otherwise one that earns less than the best is wrong,
/// which is told.
void DecideByScores(const std::vector<double>& scores, bool addUp, std::vector<ExchangedOption>& options,
                    ExchangeNotes& notes);

/// Answers of a question belong to its blanks by their order. So a blank without an answer keeps its place,
/// which is told; if none has one, there are no answers.
void KeepPlacesOfBlanks(ExchangedQuestion& question, ExchangeNotes& notes);

/// Puts a text that belongs to several questions in front of the one that comes first; told.
void PutInFront(std::u16string_view passage, ExchangedQuestion& question, ExchangeNotes& notes);

}  // namespace quorvantis
