// SPDX-License-Identifier: MIT
#include "cli/edit/ScoreSteps.h"

#include "cli/console/CommandError.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis::cli {
namespace {

constexpr std::u16string_view kDigits = u"0123456789";

/// A score field would drop other characters one by one, and so turn "2,5" into 25.
bool IsScore(std::u16string_view text) {
  return text.find_first_of(kDigits) != std::u16string_view::npos &&
         text.find_first_not_of(u"0123456789.") == std::u16string_view::npos &&
         std::ranges::count(text, u'.') <= 1;
}

bool ShowsRangesAnew(TypedEnd outcome) {
  return outcome == TypedEnd::Reverted || outcome == TypedEnd::Moved || outcome == TypedEnd::Clamped;
}

/// Performs the steps as a user would, one at a time.
class ScriptedUser {
 public:
  ScriptedUser(ScoreSetup& setup, const Console& console) : setup_(setup), console_(console) {}

  void Do(const ScoreStep& step) {
    if (step.kind == ScoreStep::Kind::Mode) setup_.ClickRadio(step.radio);
    if (step.kind == ScoreStep::Kind::Score) TypeScore(step);
    if (step.kind == ScoreStep::Kind::End) TypeEnd(step);
  }

 private:
  void TypeScore(const ScoreStep& step) {
    if (setup_.TypeScore(step.range, step.text)) {
      scoreTyped_ = true;
    } else {
      NoteClosed("the score", step);
    }
  }
  void TypeEnd(const ScoreStep& step);

  void NoteClosed(const std::string& field, const ScoreStep& step) const {
    Note(field, step,
         setup_.Fields().Enabled() ? "cannot be typed into" : "cannot be typed into in this score mode");
  }
  void Note(const std::string& field, const ScoreStep& step, const std::string& what) const {
    console_.Complain("note: " + field + " of score range " + std::to_string(step.range) + " " + what);
  }

  ScoreSetup& setup_;
  const Console& console_;
  bool scoreTyped_ = false;  ///< a score was typed since the ranges were shown
};

void ScriptedUser::TypeEnd(const ScoreStep& step) {
  const TypedEnd outcome = setup_.TypeEnd(step.range, step.text);
  const std::string end = Utf16ToUtf8(setup_.Fields().to[static_cast<std::size_t>(step.range - 1)].text);
  const std::string typed = "\"" + Utf16ToUtf8(step.text) + "\"";
  if (outcome == TypedEnd::NotEditable) NoteClosed("the end", step);
  if (outcome == TypedEnd::Reverted) Note("the end", step, "cannot be " + typed + "; it stays " + end);
  if (outcome == TypedEnd::Clamped) Note("the end", step, "cannot be " + typed + "; it is " + end + " now");
  if (outcome == TypedEnd::Ignored) Note("the end", step, "lies in the range before; no other range moves");
  if (!ShowsRangesAnew(outcome) || !scoreTyped_) return;
  Note("the end", step, "puts all scores back that were typed before it; type them afterwards");
  scoreTyped_ = false;
}

}  // namespace

ScoreStep ModeStep(std::string_view mode) {
  if (mode != "same" && mode != "custom") throw CommandError("the mode is same or custom");
  return {ScoreStep::Kind::Mode, mode == "custom" ? 1 : 0, 0, {}};
}

ScoreStep RangeStep(ScoreStep::Kind kind, std::u16string_view range, std::u16string text) {
  const int number = ParseInteger(range);
  const bool known = number >= 1 && number <= static_cast<int>(kScoreRanges);
  if (!known || FormatInteger(number) != range) {
    throw CommandError("\"" + Utf16ToUtf8(range) + "\" is no score range; they are 1 to 10");
  }
  if (kind == ScoreStep::Kind::Score && !IsScore(text)) {
    throw CommandError("\"" + Utf16ToUtf8(text) + "\" is no score; write it like 2 or 2.50");
  }
  return {kind, 0, number, std::move(text)};
}

ScoreStep AssignmentStep(ScoreStep::Kind kind, std::string_view assignment) {
  const std::size_t sign = assignment.find('=');
  if (sign == std::string_view::npos) {
    throw CommandError("\"" + std::string(assignment) + "\" is not of the form RANGE=NUMBER");
  }
  return RangeStep(kind, Utf8ToUtf16(assignment.substr(0, sign)), Utf8ToUtf16(assignment.substr(sign + 1)));
}

void TakeScoreSteps(ScoreSetup& setup, const std::vector<ScoreStep>& steps, const Console& console) {
  ScriptedUser user(setup, console);
  for (const ScoreStep& step : steps) user.Do(step);
}

}  // namespace quorvantis::cli
