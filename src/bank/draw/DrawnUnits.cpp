// SPDX-License-Identifier: MIT
#include "bank/draw/DrawnUnits.h"

namespace quorvantis {

DrawnUnits::DrawnUnits(std::span<const DrawCandidate> candidates, const std::vector<DrawUnit>& units,
                       const ComparedAt& comparedAt)
    : candidates_(candidates),
      units_(units),
      comparedAt_(comparedAt),
      wishes_(units.size()),
      lookedAt_(units.size()),
      isNear_(units.size()) {}

bool DrawnUnits::IsNear(std::size_t unit) {
  if (IsDrawn(unit)) return false;
  const QuestionSketch& sketch = candidates_[units_[unit].First()].sketch;
  std::optional<ComparedQuestion> own;
  for (std::size_t& i = lookedAt_[unit]; i < drawn_.size() && !isNear_[unit]; ++i) {
    if (EstimateSimilarity(sketch, candidates_[units_[drawn_[i]].First()].sketch) < kWorthAnExactLook)
      continue;
    if (!own) own.emplace(comparedAt_(units_[unit].First()));
    isNear_[unit] = IsSameQuestion(RelationOf(*own, compared_[i]));
  }
  return isNear_[unit];
}

void DrawnUnits::Put(std::size_t unit, std::size_t wish) {
  wishes_[unit] = wish;
  drawn_.push_back(unit);
  compared_.push_back(comparedAt_(units_[unit].First()));
}

}  // namespace quorvantis
