// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/form/ExchangeNotes.h"
#include "exchange/form/ExchangedExam.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

enum class ClozeKind {
  Words,
  Number,
  Choice,   ///< of one option
  Choices,  ///< of all that are right
};

/// The kind of blank that a name such as "SHORTANSWER" stands for; its case does not matter.
std::optional<ClozeKind> ClozeKindOf(std::u16string_view name);

/// Whether a kind of words with this name tells small letters from capitals.
bool CaseMattersIn(std::u16string_view name);

/// One of the answers embedded for a blank.
struct ClozeAnswer {
  std::u16string text;  ///< without markup
  double fraction = 0;  ///< of the score of the blank, in percent
};

/// What an exam accepts in a blank: nothing where no answer is right, which is told. What is partly right is
/// told, and so are options of which several have to be chosen.
BlankAnswers RightAnswers(ClozeKind kind, const std::vector<ClozeAnswer>& answers, ExchangeNotes& notes);

}  // namespace quorvantis
