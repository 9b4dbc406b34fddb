// SPDX-License-Identifier: MIT
#include "learn/PaperLearner.h"

#include "learn/BeginningAndEnd.h"
#include "learn/LayoutFacts.h"
#include "learn/LayoutSearch.h"
#include "learn/MarkedPlaces.h"
#include "platform/texts/LearnTexts.h"

namespace quorvantis {

LearnedRules LearnRules(const Paper& paper, const std::vector<PaperMark>& marks,
                        const LearnOptions& options) {
  LearnedRules learned;
  try {
    const BeginningAndEnd cut(paper, marks);
    const MarkedPlaces places(cut.LookedAt(), cut.Marks());
    TriedLayout layout = LayoutSearch(cut.LookedAt(), places, options).Search();
    const std::vector<RolePart> roles = RolesOf(cut.LookedAt(), layout.reading);
    learned.unfollowed = cut.OriginalIndices(places.Unfollowed(roles));
    learned.confidence = layout.score.Confidence();
    learned.facts = FactsOf(cut.LookedAt(), layout);
    if (cut.IsCut()) learned.facts.push_back({text_id::kLearnedBeginning});
    learned.rules = std::move(layout.rules);
  } catch (const ImportFailure&) {
    learned = {};
    learned.wasCancelled = true;
  }
  return learned;
}

}  // namespace quorvantis
