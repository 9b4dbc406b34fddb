// SPDX-License-Identifier: MIT
// What can be wrong with answers that are written.
#pragma once

#include "check/CheckRule.h"

namespace quorvantis {

class FillInWithoutAnswer : public QuestionRule {
  void CheckQuestion(const CheckedQuestion& question, FindingList& findings) const override;
};

class EssayWithoutAnswer : public QuestionRule {
  void CheckQuestion(const CheckedQuestion& question, FindingList& findings) const override;
};

/// Only of questions with blanks and with answers: "Write the words in their order" has none to fill.
class BlanksAndAnswers : public QuestionRule {
  void CheckQuestion(const CheckedQuestion& question, FindingList& findings) const override;
};

/// The number of blanks to fill in: runs of underscores (also "_ _ _"), of full-width ones, and brackets or
/// underlining around blanks alone.
std::size_t CountBlanks(std::u16string_view text);

}  // namespace quorvantis
