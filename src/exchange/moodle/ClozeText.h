// SPDX-License-Identifier: MIT
// Text with answers embedded in it: "The sky is {1:SHORTANSWER:=blue~=grey}."
#pragma once

#include "exchange/form/ExchangedExam.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// HTML with the blanks of an exam text replaced by their answers, each of which scores `blankScore`.
std::u16string ClozeHtml(std::u16string_view examText, const std::vector<BlankAnswers>& blanks,
                         int blankScore);

/// What importers take a backslash away from when the names of characters have been resolved.
constexpr bool IsProtectedLate(char16_t unit) {
  return unit == u'}' || unit == u'#';
}

}  // namespace quorvantis
