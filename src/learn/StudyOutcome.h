// SPDX-License-Identifier: MIT
#pragma once

#include "learn/PaperLearner.h"
#include "learn/reading/ReadingRoles.h"
#include "learn/warnings/ReadingWarnings.h"

#include <vector>

namespace quorvantis {

/// What is known of a paper at one moment of its study: rules, and what an import by them makes of it. A
/// plain value, so that it can be worked out on another thread and handed over.
struct StudyOutcome {
  LearnedRules learned{};
  PaperReading reading{};
  std::vector<RolePart> roles{};
  std::vector<ReadingWarning> warnings{};

  bool WasCancelled() const;
};

/// Works out rules, without any mark or with some, and reads the paper by them.
StudyOutcome WorkOutRules(const Paper& paper, const std::vector<PaperMark>& marks,
                          const CancelHook& isCancelled);

/// Reads the paper by rules written by hand.
StudyOutcome TryRules(const Paper& paper, ImportSettings rules, const CancelHook& isCancelled);

}  // namespace quorvantis
