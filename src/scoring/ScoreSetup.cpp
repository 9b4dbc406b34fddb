// SPDX-License-Identifier: MIT
#include "scoring/ScoreSetup.h"

#include "text/NumberText.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

std::size_t IndexOf(int range) {
  return static_cast<std::size_t>(range - 1);
}

/// The ranges up to the first one that is unused or reaches beyond the exam; while each question has the same
/// score, one range over the whole exam with the score 0.
ScoreDistribution RangesWithin(const ScoreDistribution& given, int questionCount) {
  ScoreDistribution ranges;
  for (std::size_t i = 0; i < kScoreRanges; ++i) {
    if (given.scoreTo[i] == 0 || given.scoreTo[i] > questionCount) {
      if (i == 0) ranges.scoreFrom[0] = given.scoreFrom[0];
      break;
    }
    if (!HasScoreRanges(given.scoreMode)) break;
    ranges.scoreFrom[i] = given.scoreFrom[i];
    ranges.scoreTo[i] = given.scoreTo[i];
    ranges.scoreValue[i] = given.scoreValue[i];
  }
  if (!HasScoreRanges(given.scoreMode)) ranges.scoreTo[0] = questionCount;
  return ranges;
}

/// Makes the last used range end with the exam. If none is used, the number of questions deliberately becomes
/// the *start* of range 10: this has always happened to exams shorter than their first range.
void StretchLastRange(ScoreDistribution& ranges, int questionCount) {
  const auto firstUnused = std::ranges::find(ranges.scoreTo, 0);
  if (firstUnused == ranges.scoreTo.begin()) {
    ranges.scoreFrom.back() = questionCount;
  } else {
    *std::prev(firstUnused) = questionCount;
  }
}

}  // namespace

void ScoreSetup::SetDistribution(const ScoreDistribution& distribution) {
  ranges_ = RangesWithin(distribution, questionCount_);
  StretchLastRange(ranges_, questionCount_);
  ranges_.scoreMode = distribution.scoreMode;
  fields_ = ShowRanges(ranges_);
}

void ScoreSetup::GetDistribution(ScoreDistribution& distribution) const {
  distribution = ranges_;
  distribution.scoreFrom[0] = 1;
}

bool ScoreSetup::IsEndEditable(int range) const {
  return fields_.Enabled() && !fields_.to[IndexOf(range)].readOnly;
}

bool ScoreSetup::IsScoreEditable(int range) const {
  return fields_.Enabled() && !fields_.score[IndexOf(range)].readOnly;
}

TypedEnd ScoreSetup::TypeEnd(int range, std::u16string text) {
  if (!IsEndEditable(range)) return TypedEnd::NotEditable;
  const int end = ParseInteger(text);
  fields_.to[IndexOf(range)].text = std::move(text);
  const TypedEnd outcome = MoveEnd(ranges_, IndexOf(range), end, questionCount_);
  const bool refreshes = outcome != TypedEnd::Same && outcome != TypedEnd::Ignored;
  if (refreshes) fields_ = ShowRanges(ranges_);
  return outcome;
}

bool ScoreSetup::TypeScore(int range, std::u16string text) {
  if (!IsScoreEditable(range)) return false;
  fields_.score[IndexOf(range)].text = std::move(text);
  return true;
}

void ScoreSetup::ClickRadio(int value) {
  fields_.radio = value;
  ranges_.scoreMode = static_cast<ScoreMode>(value);
}

void ScoreSetup::ReadBack() {
  ReadFields(fields_, ranges_);
}

ScoreDistribution ScoreSetup::Typed() const {
  ScoreDistribution typed;
  typed.scoreFrom[0] = 1;
  ReadFields(fields_, typed);
  return typed;
}

}  // namespace quorvantis
