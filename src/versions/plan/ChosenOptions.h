// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamPaper.h"
#include "text/SeededRandom.h"
#include "versions/plan/OptionOrder.h"
#include "versions/plan/PinnedParts.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quorvantis {

/// Chooses the orders of options for one version after the other: random ones, of which some are drawn again
/// until the version has about as many keys in common with each one before as by chance. With more, students
/// could copy; with far fewer, the key of a neighbour would tell what is not right. No letter is preferred.
class ChosenOptions {
 public:
  /// Two versions should have `fewest` to `most` keys in common. All must outlive this.
  ChosenOptions(const ExamPaper& exam, const PinnedParts& pinned, std::size_t fewest, std::size_t most)
      : exam_(exam), pinned_(pinned), fewest_(fewest), most_(most) {}

  /// The order of the options at each place of a version with these questions.
  std::vector<OptionOrder> Choose(const std::vector<int>& questions, SeededRandom& random) const;

  /// Any orders, to find some that are different at all.
  std::vector<OptionOrder> Any(const std::vector<int>& questions, SeededRandom& random) const;

  /// The orders of a version are decided.
  void Keep(const std::vector<int>& questions, const std::vector<OptionOrder>& options);

 private:
  /// The keys by place, 0 where there is none.
  using Keys = std::vector<int>;
  OptionOrder RandomOrder(int question, SeededRandom& random) const;
  Keys KeysOf(const std::vector<int>& questions, const std::vector<OptionOrder>& options) const;
  std::vector<std::size_t> InCommon(const Keys& keys) const;
  std::int64_t CostOf(std::size_t same) const;
  std::int64_t CostOfMoving(std::size_t place, int from, int to, const std::vector<std::size_t>& same) const;

  const ExamPaper& exam_;
  const PinnedParts& pinned_;
  std::size_t fewest_;
  std::size_t most_;
  std::vector<Keys> kept_;
};

}  // namespace quorvantis
