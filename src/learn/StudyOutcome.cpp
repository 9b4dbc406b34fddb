// SPDX-License-Identifier: MIT
#include "learn/StudyOutcome.h"

#include "learn/LayoutFacts.h"

#include <utility>

namespace quorvantis {
namespace {

bool IsCancellation(const std::optional<ImportFailure>& failure) {
  return failure && failure->reason == ImportFailure::Reason::Cancelled;
}

StudyOutcome ReadBy(const Paper& paper, LearnedRules learned, const CancelHook& isCancelled) {
  StudyOutcome outcome{std::move(learned)};
  if (outcome.learned.wasCancelled) return outcome;
  outcome.reading = ReadByRules(paper, outcome.learned.rules, isCancelled);
  if (!outcome.reading.HasFailed()) CountAnew(outcome.learned.facts, outcome.reading.paper);
  outcome.roles = RolesOf(paper, outcome.reading);
  outcome.warnings = WarningsOf(paper, outcome.learned.rules, outcome.reading);
  return outcome;
}

}  // namespace

bool StudyOutcome::WasCancelled() const {
  return learned.wasCancelled || IsCancellation(reading.marked.failure) ||
         IsCancellation(reading.paper.failure);
}

StudyOutcome WorkOutRules(const Paper& paper, const std::vector<PaperMark>& marks,
                          const CancelHook& isCancelled) {
  return ReadBy(paper, LearnRules(paper, marks, {isCancelled}), isCancelled);
}

StudyOutcome TryRules(const Paper& paper, ImportSettings rules, const CancelHook& isCancelled) {
  LearnedRules own;
  own.rules = std::move(rules);
  return ReadBy(paper, std::move(own), isCancelled);
}

}  // namespace quorvantis
