// SPDX-License-Identifier: MIT
#pragma once

#include "bank/draw/DrawRequest.h"

#include <span>

namespace quorvantis {

/// A different question: all candidates with one key.
struct DrawUnit {
  std::vector<std::size_t> candidates;  ///< those that are offered first; of these the one used last
  bool isOffered = false;               ///< whether any of them is
  QuestionKind kind = QuestionKind::Choice;
  std::vector<std::u16string> tags;  ///< of any of them
  std::optional<std::chrono::sys_days> lastUsed;
  std::size_t lastUsedIn = 0;  ///< a candidate

  std::size_t First() const { return candidates.front(); }
};

/// In the order of their keys, so that the order of the candidates does not matter.
std::vector<DrawUnit> UnitsOf(std::span<const DrawCandidate> candidates);

/// Whether units may come for wishes, before any is drawn. Refers to what it is given.
class DrawConditions {
 public:
  DrawConditions(std::span<const DrawCandidate> candidates, const DrawRequest& request,
                 const ComparedAt& comparedAt);

  /// Nothing if it may come.
  std::optional<DrawObstacle> ObstacleOf(const DrawUnit& unit, const DrawWish& wish);

 private:
  bool IsInOpenExam(std::size_t candidate);

  std::span<const DrawCandidate> candidates_;
  const DrawRequest& request_;
  const ComparedAt& comparedAt_;
  std::vector<QuestionSketch> openSketches_;
  std::map<std::size_t, bool> areInOpenExam_;  // by candidate, for those that were looked at
};

}  // namespace quorvantis
