// SPDX-License-Identifier: MIT
// The blanks in the text of a fill-in question: three underscores or more in a row.
#pragma once

#include "exchange/form/ExchangedExam.h"
#include "text/TextSpan.h"

#include <string_view>
#include <vector>

namespace quorvantis {

/// What is put where another format has a blank.
inline constexpr std::u16string_view kBlank = u"____";

/// The class of a span that says how long the blank in it is, where it is longer or shorter: this and the
/// number of underscores.
inline constexpr std::u16string_view kBlankClass = u"qv-blank-";

/// A blank of the length that such a class names, or of the usual one.
std::u16string BlankOfClass(std::u16string_view className);

std::vector<TextSpan> BlanksIn(std::u16string_view text);

/// Answers as an exam keeps them, one after the other. There are as many as blanks, two or more: one for
/// each, and an empty one leaves its blank without; otherwise they are alternatives, and empty ones do not
/// count.
std::vector<BlankAnswers> ByBlank(std::u16string_view text, const BlankAnswers& answers);

/// The answers of an exam's line of answers, also empty ones.
BlankAnswers SplitAnswers(std::u16string_view line);

}  // namespace quorvantis
