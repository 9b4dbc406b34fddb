// SPDX-License-Identifier: MIT
#pragma once

#include "search/ExamSearch.h"
#include "search/ReplacementText.h"

#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

/// Why a hit is left alone.
enum class ReplacementObstacle {
  FileName,      ///< names of attached files are found, but never changed
  TooLong,       ///< the field cannot hold the result
  EmptyAnswer,   ///< one of several answers to a fill-in question would be empty, and so get lost
  OtherAnswers,  ///< the result would have a separator of answers more
};

/// Whether a field of an exam can take a new text. A text that is too long already may become shorter.
std::optional<ReplacementObstacle> FindObstacle(const FieldRewrite& rewrite);

/// One hit and what would take its place.
struct PlannedReplacement {
  SearchHit hit;
  std::u16string text;  ///< with the line ends of the field: CR LF, blanks in a field of one line
  /// The same for all hits of a field, which are judged together.
  std::optional<ReplacementObstacle> obstacle;
};

/// All hits in an exam, in the order of the document, except those that would stay as they are.
struct ReplacementPlan {
  std::vector<PlannedReplacement> replacements;
  SearchEnd end = SearchEnd::Done;
  TextPlace stoppedAt;    ///< the text that was not searched to its end, unless Done
  bool leftSame = false;  ///< there are hits that would stay as they are
};

ReplacementPlan PlanReplacements(const FrameSetExam& exam, const TextSearch& search,
                                 const ReplacementText& replacement, const SearchCancelled& isCancelled = {});

/// The replacement of one hit, even if it stays as it is; nothing if there is no such hit in the exam, or if
/// the search was cancelled.
std::optional<PlannedReplacement> PlanReplacement(const FrameSetExam& exam, const SearchHit& hit,
                                                  const TextSearch& search,
                                                  const ReplacementText& replacement,
                                                  const SearchCancelled& isCancelled = {});

/// The new texts of the fields in which `chosen` lie, one for each field. `chosen` are in the order of the
/// document and were planned for this `exam`.
std::vector<FieldRewrite> RewriteFields(const FrameSetExam& exam,
                                        const std::vector<PlannedReplacement>& chosen);

}  // namespace quorvantis
