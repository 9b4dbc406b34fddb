// SPDX-License-Identifier: MIT
#pragma once

#include "scoring/RangeEnds.h"
#include "scoring/ScoreDistribution.h"
#include "scoring/ScoreFields.h"

#include <functional>
#include <string>

namespace quorvantis {

/// The score setup without its dialog: takes a distribution, says what the fields show, follows what is typed
/// into them, and gives the distribution back.
///
/// Ranges are re-cut at every change of an end's text, so an end of two digits is best pasted, stepped or
/// dragged. The fields hold more than the ranges do: a typed score enters the ranges only with ReadBack, and
/// is lost if an end changes before that, since the fields then show the ranges again.
///
/// Ranges have the numbers 1 to 10.
class ScoreSetup {
 public:
  /// Questions of the exam, 0 to 500. Set this before the distribution.
  void SetQuestionCount(int count) { questionCount_ = count; }
  int QuestionCount() const { return questionCount_; }

  /// Takes the ranges of `distribution` that lie within the exam; the last of them then ends with the exam.
  void SetDistribution(const ScoreDistribution& distribution);

  /// The distribution as of the last ReadBack; range 1 starts with question 1 whatever it was.
  void GetDistribution(ScoreDistribution& distribution) const;

  const ScoreFields& Fields() const { return fields_; }

  bool IsEndEditable(int range) const;
  bool IsScoreEditable(int range) const;

  /// The text of a range's end has become `text`, by typing, pasting or anything else.
  TypedEnd TypeEnd(int range, std::u16string text);

  /// The text of a range's score has become `text`. False when the field cannot be typed into.
  bool TypeScore(int range, std::u16string text);

  /// A radio button was clicked; 0 for the first and 1 for the second.
  void ClickRadio(int value);

  /// Takes the values of the fields, unchecked. Call this after the dialog has closed.
  void ReadBack();

  /// What ReadBack and GetDistribution would return now.
  ScoreDistribution Typed() const;

 private:
  int questionCount_ = 0;
  ScoreDistribution ranges_;
  ScoreFields fields_;
};

/// Lets a person or a script edit the fields of a setup, and returns when they are done. True after OK.
using EditScoreSetup = std::function<bool(ScoreSetup& setup)>;

}  // namespace quorvantis
