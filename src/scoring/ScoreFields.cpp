// SPDX-License-Identifier: MIT
#include "scoring/ScoreFields.h"

#include "text/NumberText.h"

namespace quorvantis {
namespace {

constexpr std::size_t kLastRange = kScoreRanges - 1;

/// Range 1 is recognised by its end, since it has no field for its start; the others by their start. A range
/// with a start of its own is shown even when its end is 0.
bool IsShown(const ScoreDistribution& ranges, std::size_t i) {
  return (i == 0 ? ranges.scoreTo[i] : ranges.scoreFrom[i]) != 0;
}

}  // namespace

ScoreFields ShowRanges(const ScoreDistribution& ranges) {
  ScoreFields fields;
  for (std::size_t i = 0; i < kScoreRanges; ++i) {
    if (!IsShown(ranges, i)) continue;
    if (i > 0) fields.from[i].text = FormatInteger(ranges.scoreFrom[i]);
    // The end of the last range is never editable: there is no next range to re-cut.
    fields.to[i] = {FormatInteger(ranges.scoreTo[i]), i == kLastRange};
    fields.score[i] = {FormatScore(ranges.scoreValue[i]), false};
  }
  fields.radio = HasOneScore(ranges.scoreMode) ? 0 : 1;
  return fields;
}

void ReadFields(const ScoreFields& fields, ScoreDistribution& ranges) {
  for (std::size_t i = 0; i < kScoreRanges; ++i) {
    if (i > 0) ranges.scoreFrom[i] = ParseInteger(fields.from[i].text);
    ranges.scoreTo[i] = ParseInteger(fields.to[i].text);
    ranges.scoreValue[i] = static_cast<float>(ParseReal(fields.score[i].text));
  }
  ranges.scoreMode = static_cast<ScoreMode>(fields.radio);
}

bool ScoreFieldTakes(char16_t typed, std::u16string_view content) {
  return IsDigit(typed) || typed == u'\b' ||
         (typed == u'.' && content.find(u'.') == std::u16string_view::npos);
}

bool DigitFieldTakes(char16_t typed, std::u16string_view) {
  return IsDigit(typed);
}

}  // namespace quorvantis
