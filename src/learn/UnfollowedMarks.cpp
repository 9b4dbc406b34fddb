// SPDX-License-Identifier: MIT
#include "learn/UnfollowedMarks.h"

#include "learn/LearnedTexts.h"
#include "learn/MarkedPlaces.h"
#include "learn/StudyTexts.h"
#include "platform/texts/StudioTexts.h"
#include "text/MessageText.h"

#include <algorithm>
#include <initializer_list>
#include <map>
#include <optional>

namespace quorvantis {
namespace {

using Why = UnfollowedMark::Why;

/// Works out rules for some of the marks, as often as there is time.
class MarkTrials {
 public:
  MarkTrials(const Paper& paper, const std::vector<PaperMark>& marks,
             const std::vector<std::size_t>& unfollowed, const CancelHook& isCancelled)
      : paper_(paper), marks_(marks), unfollowed_(unfollowed), isCancelled_(isCancelled) {}

  UnfollowedMark Explain(std::size_t mark) {
    if (!MarkedPlaces(paper_, marks_).CanBeFollowed(marks_[mark])) return {mark, Why::WithinLine};
    if (marks_.size() == 1 || !IsFollowedAlone(mark)) return {mark, Why::WithoutRule};
    for (const std::size_t other : Others(mark)) {
      if (HasEnded()) break;
      if (IsFollowedAlone(other) && !AreFollowed({mark, other})) return {mark, Why::Contradicted, other};
    }
    return {mark, Why::WithOthers};
  }

  bool WasCancelled() const { return wasCancelled_; }

 private:
  bool HasEnded() const { return wasCancelled_ || trials_ >= kMostTrials; }

  /// The marks that are followed come first, the last one of them before all others.
  std::vector<std::size_t> Others(std::size_t mark) const {
    std::vector<std::size_t> others;
    for (std::size_t i = marks_.size(); i-- > 0;) {
      if (i != mark) others.push_back(i);
    }
    std::stable_partition(others.begin(), others.end(), [this](std::size_t other) {
      return std::find(unfollowed_.begin(), unfollowed_.end(), other) == unfollowed_.end();
    });
    return others;
  }

  bool IsFollowedAlone(std::size_t mark) {
    const auto known = alone_.find(mark);
    if (known != alone_.end()) return known->second;
    return alone_[mark] = AreFollowed({mark});
  }

  bool AreFollowed(std::initializer_list<std::size_t> some) {
    std::vector<PaperMark> chosen;
    for (const std::size_t mark : some) chosen.push_back(marks_[mark]);
    ++trials_;
    const LearnedRules learned = LearnRules(paper_, chosen, {isCancelled_});
    wasCancelled_ = wasCancelled_ || learned.wasCancelled;
    return learned.unfollowed.empty();
  }

  const Paper& paper_;
  const std::vector<PaperMark>& marks_;
  const std::vector<std::size_t>& unfollowed_;
  const CancelHook& isCancelled_;
  std::map<std::size_t, bool> alone_;
  int trials_ = 0;
  bool wasCancelled_ = false;
};

}  // namespace

std::vector<UnfollowedMark> WhyUnfollowed(const Paper& paper, const std::vector<PaperMark>& marks,
                                          const std::vector<std::size_t>& unfollowed,
                                          const CancelHook& isCancelled) {
  std::vector<UnfollowedMark> reasons;
  MarkTrials trials(paper, marks, unfollowed, isCancelled);
  for (const std::size_t mark : unfollowed) {
    const UnfollowedMark reason = trials.Explain(mark);
    if (trials.WasCancelled()) break;
    reasons.push_back(reason);
  }
  return reasons;
}

std::u16string ReasonText(const UnfollowedMark& unfollowed, const Paper& paper,
                          const std::vector<PaperMark>& marks, const StringTable& strings) {
  switch (unfollowed.why) {
    case Why::Contradicted: {
      const PaperMark& other = marks[unfollowed.other];
      return FillMessage(strings.Text(text_id::kMarkContradicted),
                         {ShortText(paper, other.span), RoleName(other.role, strings)});
    }
    case Why::WithinLine:
      return strings.Text(text_id::kMarkWithinLine);
    case Why::WithoutRule:
      return strings.Text(text_id::kMarkWithoutRule);
    case Why::WithOthers:
      return strings.Text(text_id::kMarkWithOthers);
  }
  return {};
}

}  // namespace quorvantis
