// SPDX-License-Identifier: MIT
#pragma once

#include "history/ExamMoment.h"
#include "history/RecordEdits.h"
#include "history/SlotScript.h"

#include <memory>
#include <optional>
#include <vector>

namespace quorvantis {

/// The difference between two moments of an exam, which makes either of the other. Holds only what differs.
struct ExamDifference {
  template <class Value>
  struct Pair {
    Value before;
    Value after;
  };
  struct SlotPartChange {
    std::size_t slot;
    SlotPart before;
    SlotPart after;
  };

  std::shared_ptr<const ExamHeader> headerBefore;  ///< null if the header is the same
  std::shared_ptr<const ExamHeader> headerAfter;
  SlotScript questions;
  std::vector<SlotPartChange> slotParts;
  std::unique_ptr<const Pair<LongAnswerFlags>> longAnswers;  ///< null if they are the same
  std::unique_ptr<const Pair<ExamOrigin>> origin;            ///< likewise

  Pair<int> current{};
  Pair<QuestionKind> kind{};
  /// The form before differs by `form` from the form after, if the question that is shown has not changed in
  /// the document. Otherwise each differs by its own edits from what showing the question would load.
  bool linked = false;
  RecordEdits form;        ///< if linked: from before to after; otherwise from the loaded form to that before
  RecordEdits formLoaded;  ///< if not linked: from the loaded form to that after

  /// Nothing differs in the document.
  bool OnlyForm() const {
    return headerBefore == nullptr && questions.empty() && slotParts.empty() && longAnswers == nullptr &&
           origin == nullptr;
  }
  /// Nothing differs but what is shown.
  bool OnlyShows() const { return OnlyForm() && !linked; }
  bool IsEmpty() const;

  /// Memory in bytes, about.
  std::size_t Size() const;
};

/// What differs between `before` and the exam in the editor. `documentChanged`: otherwise the document is
/// known to be the same, and only the form is compared. `withOrigin`: where the exam comes from counts as a
/// difference. `cursor`: where the last edit of the form has left it, if that is known.
ExamDifference FindDifference(const ExamMoment& before, const ExamEditor& editor, bool documentChanged,
                              bool withOrigin, std::optional<FieldPlace> cursor = {});

/// Whether a difference that begins at `before` and ends with the exam in the editor is a change of the exam
/// or of the form. Otherwise only other questions were shown, or the form was stored.
bool IsChange(const ExamDifference& difference, const ExamMoment& before, const ExamEditor& editor);

/// Makes one moment of the two from the other.
void TakeDifference(const ExamDifference& difference, Direction direction, ExamMoment& moment);

}  // namespace quorvantis
