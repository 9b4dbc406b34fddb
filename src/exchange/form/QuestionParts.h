// SPDX-License-Identifier: MIT
// What readers of several formats make of parts that an exam has in another form.
#pragma once

#include "exchange/form/ExchangeNotes.h"
#include "exchange/form/ExchangedExam.h"
#include "platform/StringTable.h"

#include <string>
#include <utility>
#include <vector>

namespace quorvantis {

/// The percentage of the score that counts as right.
inline constexpr double kFullFraction = 99.9;

/// Which options are right, given how much of the score each is worth, in percent. Where one is worth all of
/// it, others are partly right at best, which an exam does not have: they are wrong. Otherwise all that are
/// worth something are right. Unless they share the score equally, that is told, and so are wrong options
/// that cost something else than all of it.
void DecideRights(const std::vector<double>& fractions, std::vector<ExchangedOption>& options,
                  ExchangeNotes& notes);

/// A question about pairs as a fill-in question: a line with a blank for each left side, and the right sides
/// in the order of the alphabet. Told.
void MakeMatching(const std::vector<std::pair<std::u16string, std::u16string>>& pairs,
                  ExchangedQuestion& question, ExchangeNotes& notes);

/// A choice between "True" and "False", in the language in use.
void MakeTrueFalse(bool isTrue, const StringTable& strings, ExchangedQuestion& question);

}  // namespace quorvantis
