// SPDX-License-Identifier: MIT
#pragma once

#include "scoring/ScoreDistribution.h"

#include <array>
#include <string>
#include <string_view>

namespace quorvantis {

/// An edit field of the setup.
struct ScoreField {
  std::u16string text;
  bool readOnly = true;

  friend bool operator==(const ScoreField&, const ScoreField&) = default;
};

/// What the score setup shows: the fields of ten ranges (index 0 to 9) and the pair of radio buttons.
struct ScoreFields {
  std::array<ScoreField, kScoreRanges> from;  ///< never editable; range 1 has none, its text stays empty
  std::array<ScoreField, kScoreRanges> to;
  std::array<ScoreField, kScoreRanges> score;
  int radio = 0;  ///< 0: each question the same score, 1: ranges

  /// Whether the fields of the ranges are enabled; otherwise they are grey.
  bool Enabled() const { return radio == 1; }

  friend bool operator==(const ScoreFields&, const ScoreFields&) = default;
};

/// The fields that show `ranges`. Unused ranges have empty ones.
ScoreFields ShowRanges(const ScoreDistribution& ranges);

/// Reads the fields back into `ranges` as C's atoi and atof would; an empty field is 0 and nothing is
/// checked. The start of range 1 has no field and stays.
void ReadFields(const ScoreFields& fields, ScoreDistribution& ranges);

/// Whether a score field accepts a typed character: digits, backspace, and one point.
bool ScoreFieldTakes(char16_t typed, std::u16string_view content);

/// Whether a field for whole numbers accepts a typed character: digits only, not even backspace.
bool DigitFieldTakes(char16_t typed, std::u16string_view content);

}  // namespace quorvantis
