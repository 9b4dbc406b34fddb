// SPDX-License-Identifier: MIT
// Questions and options that speak of others, of pictures, and that ask for the opposite.
#pragma once

#include "check/CheckRule.h"

namespace quorvantis {

/// "All of the above", "A and B": means something else once the options are shuffled.
class ShuffledOptionReference : public CheckRule {
 public:
  void Check(const CheckedExam& exam, FindingList& findings) const override;
};

/// "The previous question", "question 3": likewise, once the questions are.
class ShuffledQuestionReference : public CheckRule {
 public:
  void Check(const CheckedExam& exam, FindingList& findings) const override;
};

/// A text that wants a picture to be seen, without a file. It may speak of the file of the question before,
/// of a question that it names, or of the exam.
class PictureWithoutFile : public CheckRule {
 public:
  void Check(const CheckedExam& exam, FindingList& findings) const override;
};

/// A picture of which the question says nothing, not even a word of the file's name: who cannot see it cannot
/// answer.
class PictureWithoutWords : public CheckRule {
 public:
  void Check(const CheckedExam& exam, FindingList& findings) const override;
};

/// "Which of these is not ...": pupils overlook it unless it stands out. Only what a choice question asks,
/// its last sentence and those with a question mark.
class PlainNegation : public QuestionRule {
  void CheckQuestion(const CheckedQuestion& question, FindingList& findings) const override;
};

}  // namespace quorvantis
