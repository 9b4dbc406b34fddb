// SPDX-License-Identifier: MIT
#include "import/marking/RuleSearch.h"

namespace quorvantis {

RuleSearch::RuleSearch(std::u16string_view key, std::u16string_view pattern, const CancelHook& isCancelled)
    : key_(key), isCancelled_(isCancelled) {
  if (!pattern.empty()) pattern_.Compile(pattern, kRuleFlags);
}

std::optional<MatchResult> RuleSearch::Find(std::u16string_view text, std::size_t start,
                                            FailedStarts* failed) const {
  if (isCancelled_ && isCancelled_()) Fail(ImportFailure::Reason::Cancelled);
  // Wherever a search of an import begins, it stands for one from the first character, so "\G" is there.
  MatchContext context{0, isCancelled_, failed};
  MatchResult result = pattern_.Match(text, static_cast<int>(start), &context);
  if (result.Outcome() == MatchOutcome::Cancelled) Fail(ImportFailure::Reason::Cancelled);
  if (result.Outcome() == MatchOutcome::TooLarge) Fail(ImportFailure::Reason::TooLarge);
  if (!result.IsMatched()) return std::nullopt;
  return result;
}

}  // namespace quorvantis
