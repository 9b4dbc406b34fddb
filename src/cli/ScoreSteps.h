// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Console.h"
#include "scoring/ScoreSetup.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis::cli {

/// Something that the user of a score setup does.
struct ScoreStep {
  enum class Kind { Mode, End, Score };

  Kind kind = Kind::Mode;
  int radio = 0;        ///< for a mode
  int range = 0;        ///< 1 to 10, for an end or a score
  std::u16string text;  ///< what is put into the field of an end or a score
};

/// Makes steps of what a user wrote: "same" or "custom", a range and what to type into its field, or both as
/// "K=V". They throw CommandError when that cannot be read.
ScoreStep ModeStep(std::string_view mode);
ScoreStep RangeStep(ScoreStep::Kind kind, std::u16string_view range, std::u16string text);
ScoreStep AssignmentStep(ScoreStep::Kind kind, std::string_view assignment);

/// Goes through the steps in order. What the rules of the setup do not take is told in notes.
void TakeScoreSteps(ScoreSetup& setup, const std::vector<ScoreStep>& steps, const Console& console);

}  // namespace quorvantis::cli
