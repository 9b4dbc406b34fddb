// SPDX-License-Identifier: MIT
#pragma once

#include "learn/reading/PaperReading.h"

#include <cstddef>
#include <set>

namespace quorvantis {

/// How good a reading of a paper is, from several sides. Shares are from 0 to 1.
struct ReadingScore {
  std::size_t questions = 0;
  double rising = 0;         ///< numbers that follow on the one before
  double regular = 0;        ///< choice questions with as many options as most have
  double keys = 0;           ///< choice questions with a right option
  double plausibleKeys = 0;  ///< of these, those with one or two right options
  double explained = 0;      ///< characters that have a role
  double leftOptions = 0;    ///< questions whose text, or last option, holds labels of options
  double leftFront = 0;      ///< characters before the first question, if there are options among them
  double leftNumbers = 0;    ///< numbered lines in last options, of these and the questions
  double strayMarkers = 0;   ///< questions with markers in their texts
  double dropped = 0;        ///< parts that became no question, per question
  double longOptions = 0;    ///< options of several lines
  double emptyParts = 0;     ///< questions without text, or with an empty option before others
  double overlong = 0;       ///< questions far longer than the others
  double answered = 0;       ///< questions without options that have an answer
  double choices = 0;        ///< questions that have options

  /// All of it in one number; more is better. Readings without a question have the least.
  double Total() const;

  /// 0 to 1: how sure a reading with this score is to be right.
  double Confidence() const;
};

/// `alphabets`: those of the options (OptionAlphabets); labels of others may stand in texts.
ReadingScore ScoreOf(const Paper& paper, const PaperReading& reading, const std::set<std::size_t>& alphabets);

}  // namespace quorvantis
