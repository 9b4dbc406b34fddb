// SPDX-License-Identifier: MIT
#pragma once

#include "versions/plan/OptionOrder.h"
#include "versions/plan/PinnedParts.h"
#include "versions/plan/VersionRequest.h"

#include <string>
#include <vector>

namespace quorvantis {

/// What stands where in one version.
struct PlannedVersion {
  std::u16string name;
  std::vector<int> questions;        ///< by place from 0 on: the number in the source, 1 to 500, each once
  std::vector<OptionOrder> options;  ///< by place from 0 on

  /// The same paper, whatever its name.
  bool IsSamePaper(const PlannedVersion& other) const {
    return questions == other.questions && options == other.options;
  }
  bool operator==(const PlannedVersion&) const = default;
};

/// The orders of all versions of an exam, and what keeps its place in all of them.
struct VersionPlan {
  QuestionMoves moves = QuestionMoves::None;  ///< how far questions move indeed
  std::vector<PlannedVersion> versions;
  std::vector<PinnedPart> pinned;  ///< by question

  bool operator==(const VersionPlan&) const = default;
};

/// Whether the version has each of the questions 1 to `questionCount` at one place, and so each option.
bool IsComplete(const PlannedVersion& version, int questionCount);

}  // namespace quorvantis
