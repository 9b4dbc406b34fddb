// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/form/ExchangeNotes.h"
#include "exchange/form/ExchangedExam.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// HTML without its embedded answers.
struct ReadCloze {
  std::u16string html;
  std::vector<BlankAnswers> blanks;  ///< an empty answer where none is right
  double score = 0;                  ///< of all blanks together
};

/// Puts a blank in the place of every embedded answer. A choice becomes a blank with the options behind it,
/// which is told, like feedback, ranges of numbers, and what is partly right. Takes time in proportion to the
/// text.
ReadCloze ReadClozeHtml(std::u16string_view html, ExchangeNotes& notes);

}  // namespace quorvantis
