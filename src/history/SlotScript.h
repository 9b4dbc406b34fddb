// SPDX-License-Identifier: MIT
// What has happened to the questions of an exam, told in terms of whole questions: some were taken out, some
// put in, some edited, and all others at most moved. An insertion before 400 questions is one entry.
#pragma once

#include "history/ExamMoment.h"
#include "history/RecordEdits.h"

#include <memory>
#include <vector>

namespace quorvantis {

/// One entry. `before` and `after` are slots in the two lists; the questions between two entries are the same
/// in both.
struct SlotChange {
  std::size_t before = 0;
  std::size_t after = 0;
  std::shared_ptr<const ExamQuestion> removed;  ///< if not null, the question at `before` is gone afterwards
  std::shared_ptr<const ExamQuestion> added;    ///< if not null, the question at `after` is new
  RecordEdits edits;  ///< otherwise: from the question at `before` to that at `after`
};

using SlotScript = std::vector<SlotChange>;  ///< in the order of the slots

/// The changes from one list of questions to another of the same length. Only the content counts, not what
/// stays with a slot.
SlotScript FindSlotChanges(const std::vector<ExamQuestion>& before, const std::vector<ExamQuestion>& after);

/// Makes one list of the two from the other.
void TakeSlotChanges(const SlotScript& script, Direction direction, std::vector<ExamQuestion>& questions);

/// Memory in bytes.
std::size_t SizeOf(const SlotScript& script);

}  // namespace quorvantis
