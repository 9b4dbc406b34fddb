// SPDX-License-Identifier: MIT
// Text with answers embedded in it: "The sky is {1:SHORTANSWER:=blue~=grey}."
#pragma once

#include "exchange/form/ExchangeNotes.h"
#include "exchange/form/ExchangedExam.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// HTML with the blanks of an exam text replaced by their answers, each of which scores `blankScore`.
std::u16string ClozeHtml(std::u16string_view examText, const std::vector<BlankAnswers>& blanks,
                         int blankScore);

/// HTML without its embedded answers.
struct ReadCloze {
  std::u16string html;
  std::vector<BlankAnswers> blanks;
};

/// Puts a blank in the place of every embedded answer. A choice becomes a blank with the options behind it,
/// which is told, like feedback and ranges of numbers.
ReadCloze ReadClozeHtml(std::u16string_view html, ExchangeNotes& notes);

}  // namespace quorvantis
