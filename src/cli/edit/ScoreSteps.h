// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/Console.h"
#include "scoring/ScoreSetup.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis::cli {

/// One step of a user of the score setup.
struct ScoreStep {
  enum class Kind { Mode, End, Score };

  Kind kind = Kind::Mode;
  int radio = 0;        ///< for a mode
  int range = 0;        ///< 1 to 10, for an end or a score
  std::u16string text;  ///< the text for the field of an end or a score
};

/// Parse what a user wrote into steps: "same" or "custom", a range and the text for its field, or both as
/// "K=V". They throw CommandError for invalid text.
ScoreStep ModeStep(std::string_view mode);
ScoreStep RangeStep(ScoreStep::Kind kind, std::u16string_view range, std::u16string text);
ScoreStep AssignmentStep(ScoreStep::Kind kind, std::string_view assignment);

/// Takes the steps in order. Notes report what the rules of the setup refuse.
void TakeScoreSteps(ScoreSetup& setup, const std::vector<ScoreStep>& steps, const Console& console);

}  // namespace quorvantis::cli
