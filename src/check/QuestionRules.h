// SPDX-License-Identifier: MIT
// What can be wrong with a question whatever its kind, and with the length of its texts.
#pragma once

#include "check/CheckRule.h"

namespace quorvantis {

/// A question without anything. The last one of an exam is never empty, so others follow it.
class EmptyQuestion : public CheckRule {
 public:
  void Check(const CheckedExam& exam, FindingList& findings) const override;
};

/// A question may stand in a picture or a document instead.
class QuestionWithoutText : public QuestionRule {
  void CheckQuestion(const CheckedQuestion& question, FindingList& findings) const override;
};

/// What a save would lose and its author would miss, as the question before a save says it. Files that are
/// gone are left to the rule about them.
class SavingLosesWork : public CheckRule {
 public:
  void Check(const CheckedExam& exam, FindingList& findings) const override;
};

/// A text that fills its field almost: its end may not have fitted when it was typed or pasted. Longer texts
/// are left to the rule about losses.
class TextNearLimit : public TextRule {
  void CheckText(const CheckedText& text, FindingList& findings) const override;
};

}  // namespace quorvantis
