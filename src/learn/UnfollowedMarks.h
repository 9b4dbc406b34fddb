// SPDX-License-Identifier: MIT
// Why rules that were worked out do not follow a mark of the teacher.
#pragma once

#include "learn/PaperLearner.h"
#include "platform/StringTable.h"

#include <cstddef>
#include <string>
#include <vector>

namespace quorvantis {

/// A mark that is not followed, and why. Both are indices in the list of marks.
struct UnfollowedMark {
  enum class Why {
    Contradicted,  ///< by `other`: there are rules for each of the two, but none for both
    WithinLine,    ///< rules leave out whole lines, and it is a part of one
    WithoutRule,   ///< it is not followed even if it is the only mark
    WithOthers,    ///< several others together are in its way
  };
  std::size_t mark = 0;
  Why why = Why::WithoutRule;
  std::size_t other = 0;  ///< for Contradicted
};

/// Finds out why `unfollowed`, indices of marks, are not followed, by working out rules for some of the marks
/// alone. That takes up to kMostTrials times as long as LearnRules. Once it is cancelled, the marks that were
/// not reached are missing.
std::vector<UnfollowedMark> WhyUnfollowed(const Paper& paper, const std::vector<PaperMark>& marks,
                                          const std::vector<std::size_t>& unfollowed,
                                          const CancelHook& isCancelled);

inline constexpr int kMostTrials = 12;

/// The reason in one sentence for the user.
std::u16string ReasonText(const UnfollowedMark& unfollowed, const Paper& paper,
                          const std::vector<PaperMark>& marks, const StringTable& strings);

}  // namespace quorvantis
