// SPDX-License-Identifier: MIT
// What can be wrong with the options of a choice question and with its key.
#pragma once

#include "check/CheckRule.h"

namespace quorvantis {

class ChoiceWithoutKey : public QuestionRule {
  void CheckQuestion(const CheckedQuestion& question, FindingList& findings) const override;
};

class KeyOnEmptyOption : public QuestionRule {
  void CheckQuestion(const CheckedQuestion& question, FindingList& findings) const override;
};

class TooFewOptions : public QuestionRule {
  void CheckQuestion(const CheckedQuestion& question, FindingList& findings) const override;
};

/// An option without a text before one with a text: pages would show A and C.
class OptionGap : public QuestionRule {
  void CheckQuestion(const CheckedQuestion& question, FindingList& findings) const override;
};

/// Blanks do not count, but the case of letters does: "Aa" and "AA" differ in genetics.
class EqualOptions : public QuestionRule {
  void CheckQuestion(const CheckedQuestion& question, FindingList& findings) const override;
};

}  // namespace quorvantis
