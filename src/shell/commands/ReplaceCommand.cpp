// SPDX-License-Identifier: MIT
#include "shell/commands/ReplaceCommand.h"

#include "model/LongAnswerFlags.h"
#include "platform/StringTable.h"
#include "platform/texts/SearchTexts.h"
#include "search/SearchTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <algorithm>

namespace quorvantis {
namespace {

TextPlace PlaceOf(const PlannedReplacement& replacement) {
  return replacement.hit.place;
}

std::u16string WhyLeftAlone(const HitsLeftAlone& left, const StringTable& strings) {
  return left.why ? ObstacleText(*left.why, left.place, strings) : strings.Text(text_id::kChangedMeanwhile);
}

}  // namespace

FrameSetExam SearchedExam(const ExamEditor& editor) {
  LongAnswerFlags unused;
  return editor.questions.StoredExam(unused);
}

ReplaceOutcome ReplaceHits(ExamEditor& editor, const FrameSetExam& planned,
                           const std::vector<PlannedReplacement>& chosen) {
  ReplaceOutcome outcome;
  const auto discount = [&](const TextPlace& place) {
    const auto first = std::ranges::lower_bound(chosen, place, {}, PlaceOf);
    const auto last = std::ranges::upper_bound(chosen, place, {}, PlaceOf);
    const auto hits = static_cast<std::size_t>(last - first);
    outcome.replaced -= hits;
    return hits;
  };
  const auto leaveAlone = [&](const TextPlace& place, std::optional<ReplacementObstacle> why) {
    outcome.leftAlone.push_back({place, discount(place), why});
  };
  outcome.replaced = chosen.size();
  std::vector<FieldRewrite> possible;
  for (FieldRewrite& rewrite : RewriteFields(planned, chosen)) {
    if (const auto obstacle = FindObstacle(rewrite)) {
      leaveAlone(rewrite.place, obstacle);
    } else if (rewrite.after == rewrite.before) {
      discount(rewrite.place);
    } else {
      possible.push_back(std::move(rewrite));
    }
  }
  if (possible.empty()) return outcome;
  const std::vector<FieldRewrite> unchanged = editor.texts.Rewrite(possible);
  for (const FieldRewrite& rewrite : unchanged) leaveAlone(rewrite.place, {});
  if (unchanged.size() < possible.size()) editor.state.NameChange({ChangeKind::Replace, 0, outcome.replaced});
  return outcome;
}

std::vector<std::u16string> ReplaceSummary(const ReplaceOutcome& outcome, const StringTable& strings) {
  const auto count = [](std::size_t number) { return FormatInteger(static_cast<std::int64_t>(number)); };
  std::vector<std::u16string> lines{FillMessage(strings.Text(text_id::kReplaced), {count(outcome.replaced)})};
  for (const HitsLeftAlone& left : outcome.leftAlone) {
    lines.push_back(
        FillMessage(strings.Text(text_id::kLeftAlone),
                    {PlaceName(left.place, strings), count(left.hits), WhyLeftAlone(left, strings)}));
  }
  return lines;
}

}  // namespace quorvantis
