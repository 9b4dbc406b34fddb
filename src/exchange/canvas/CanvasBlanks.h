// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/form/ExchangedExam.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// A blank that the text calls "[name]".
struct CanvasBlank {
  std::u16string name;     ///< as an exam text
  std::u16string choices;  ///< that stand behind it; empty if pupils write
  BlankAnswers answers;
};

/// HTML with blanks for the names in brackets that stand in a span which tells their length.
std::u16string WithBlanksOfSpans(std::u16string_view html);

/// Puts blanks in the place of their names, and the answers in the order of the text. Those that the text
/// does not name come last: their blanks are there already or are put at its end.
void PlaceBlanks(std::vector<CanvasBlank> blanks, ExchangedQuestion& question);

}  // namespace quorvantis
