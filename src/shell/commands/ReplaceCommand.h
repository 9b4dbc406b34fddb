// SPDX-License-Identifier: MIT
#pragma once

#include "editor/ExamEditor.h"
#include "search/ReplacementPlan.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

/// Hits of one field that were not replaced.
struct HitsLeftAlone {
  TextPlace place;
  std::size_t hits = 0;
  std::optional<ReplacementObstacle> why;  ///< nothing if the field has changed since the plan was made
};

struct ReplaceOutcome {
  std::size_t replaced = 0;  ///< hits, without those of fields that read the same before and after
  std::vector<HitsLeftAlone> leftAlone;
};

/// The exam as a search has to see it: with the form stored.
FrameSetExam SearchedExam(const ExamEditor& editor);

/// Replaces hits as one command of the user. `chosen` are in the order of the document and were planned for
/// `planned`, an earlier state of the exam. Fields that have changed since or that cannot take the result are
/// left alone as a whole. If all stay as they are, the exam counts as unchanged.
ReplaceOutcome ReplaceHits(ExamEditor& editor, const FrameSetExam& planned,
                           const std::vector<PlannedReplacement>& chosen);

/// What users are told: how many hits were replaced, and a line for each field that was left alone.
std::vector<std::u16string> ReplaceSummary(const ReplaceOutcome& outcome, const StringTable& strings);

}  // namespace quorvantis
