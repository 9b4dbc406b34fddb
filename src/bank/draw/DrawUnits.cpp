// SPDX-License-Identifier: MIT
#include "bank/draw/DrawUnits.h"

#include "bank/tags/TagEntry.h"

#include <algorithm>
#include <string_view>

namespace quorvantis {
namespace {

bool HasTagsOf(const DrawUnit& unit, const DrawWish& wish) {
  const auto hasIt = [&unit](const std::u16string& tag) { return HasTag(unit.tags, tag); };
  return std::all_of(wish.tags.begin(), wish.tags.end(), hasIt) &&
         std::none_of(wish.withoutTags.begin(), wish.withoutTags.end(), hasIt);
}

void AddCandidate(const DrawCandidate& candidate, std::size_t place, DrawUnit& unit) {
  unit.kind = candidate.kind;
  unit.isOffered = unit.isOffered || candidate.isOffered;
  if (unit.candidates.empty() || candidate.used > unit.lastUsed) {
    unit.lastUsed = candidate.used;
    unit.lastUsedIn = place;
  }
  unit.candidates.push_back(place);
  for (const std::u16string& tag : candidate.tags) {
    if (!HasTag(unit.tags, tag)) unit.tags.push_back(tag);
  }
}

}  // namespace

std::vector<DrawUnit> UnitsOf(std::span<const DrawCandidate> candidates) {
  std::map<std::string_view, DrawUnit> byKey;
  for (std::size_t i = 0; i < candidates.size(); ++i)
    AddCandidate(candidates[i], i, byKey[candidates[i].key]);
  std::vector<DrawUnit> units;
  units.reserve(byKey.size());
  for (auto& [key, unit] : byKey) {
    std::stable_sort(unit.candidates.begin(), unit.candidates.end(), [&](std::size_t a, std::size_t b) {
      const DrawCandidate& one = candidates[a];
      const DrawCandidate& other = candidates[b];
      if (one.isOffered != other.isOffered) return one.isOffered;
      return one.used > other.used;
    });
    units.push_back(std::move(unit));
  }
  return units;
}

DrawConditions::DrawConditions(std::span<const DrawCandidate> candidates, const DrawRequest& request,
                               const ComparedAt& comparedAt)
    : candidates_(candidates), request_(request), comparedAt_(comparedAt) {
  openSketches_.reserve(request.openExam.size());
  for (const ComparedQuestion& question : request.openExam) openSketches_.emplace_back(question.All());
}

std::optional<DrawObstacle> DrawConditions::ObstacleOf(const DrawUnit& unit, const DrawWish& wish) {
  if (!unit.isOffered) return DrawObstacle::NotOffered;
  if (wish.kind && *wish.kind != unit.kind) return DrawObstacle::Kind;
  if (!HasTagsOf(unit, wish)) return DrawObstacle::Tags;
  if (request_.notUsedSince && unit.lastUsed >= request_.notUsedSince) return DrawObstacle::UsedSince;
  if (request_.rejected.contains(candidates_[unit.First()].key)) return DrawObstacle::Rejected;
  if (IsInOpenExam(unit.First())) return DrawObstacle::InOpenExam;
  return std::nullopt;
}

bool DrawConditions::IsInOpenExam(std::size_t candidate) {
  const auto known = areInOpenExam_.find(candidate);
  if (known != areInOpenExam_.end()) return known->second;
  const std::vector<std::size_t> likely = LikelyAlike(candidates_[candidate].sketch, openSketches_);
  bool isInIt = false;
  if (!likely.empty()) {
    const ComparedQuestion compared = comparedAt_(candidate);
    isInIt = std::any_of(likely.begin(), likely.end(), [&](std::size_t open) {
      return IsSameQuestion(RelationOf(compared, request_.openExam[open]));
    });
  }
  areInOpenExam_[candidate] = isInIt;
  return isInIt;
}

}  // namespace quorvantis
