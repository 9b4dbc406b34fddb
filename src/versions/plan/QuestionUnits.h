// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamPaper.h"
#include "text/SeededRandom.h"
#include "versions/plan/PinnedParts.h"
#include "versions/plan/QuestionScores.h"
#include "versions/plan/VersionRequest.h"

#include <vector>

namespace quorvantis {

/// What moves as one: a question with those that stay behind it. Units of the same group and length exchange
/// their places; within a stretch of units of one group, those of different lengths change places, too.
class QuestionUnits {
 public:
  /// Pins questions that are tied to one that cannot move with them.
  QuestionUnits(const ExamPaper& exam, const QuestionScores& scores, QuestionMoves moves,
                PinnedParts& pinned);

  /// A random order: the number in the source by place from 0 on.
  std::vector<int> RandomOrder(SeededRandom& random) const;

  /// The questions that can come to a place (from 0 on), itself included; each as often as it is likely.
  const std::vector<int>& Candidates(std::size_t place) const { return candidates_[place]; }

 private:
  struct Unit {
    int first = 0;   ///< the number of its first question
    int length = 0;  ///< questions
    int group = 0;   ///< kStays, or that of the questions with which it changes places
  };
  static constexpr int kStays = -1;

  void JoinUnits(const std::vector<int>& groups, PinnedParts& pinned);
  void FindExchanges();
  void FindStretches();
  void ListCandidates();
  void SampleStretches();

  int count_;
  std::vector<Unit> units_;                          ///< in the order of the source, without those that stay
  std::vector<std::vector<std::size_t>> exchanges_;  ///< units of the same group and length
  std::vector<std::vector<std::size_t>> stretches_;  ///< places of units without a gap, of different lengths
  std::vector<std::vector<int>> candidates_;
};

}  // namespace quorvantis
