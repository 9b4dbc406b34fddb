// SPDX-License-Identifier: MIT
#include "versions/verify/PinsHold.h"

#include <algorithm>
#include <cstddef>

namespace quorvantis {
namespace {

bool IsKept(const PinnedPart& part, const PlannedVersion& version) {
  const auto found = std::ranges::find(version.questions, part.question);
  if (found == version.questions.end()) return false;
  const auto place = static_cast<std::size_t>(found - version.questions.begin());
  if (part.reason == PinReason::FollowsOn) return place > 0 && version.questions[place - 1] == part.other;
  if (IsOfQuestion(part.reason)) return place + 1 == static_cast<std::size_t>(part.question);
  const OptionOrder& order = version.options[place];
  return part.option ? order[*part.option] == *part.option : order == kSourceOrder;
}

}  // namespace

int QuestionNotKept(const VersionPlan& plan, const PlannedVersion& version) {
  const auto isMoved = [&version](const PinnedPart& part) { return !IsKept(part, version); };
  const auto found = std::ranges::find_if(plan.pinned, isMoved);
  return found == plan.pinned.end() ? 0 : found->question;
}

}  // namespace quorvantis
