// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamPaper.h"
#include "text/SeededRandom.h"
#include "versions/OptionOrder.h"
#include "versions/PinnedParts.h"

#include <cstddef>
#include <vector>

namespace quorvantis {

/// Chooses the orders of options for one version after the other: of several random ones those with which the
/// same place rarely has the same key as in the versions before. No letter is preferred.
class ChosenOptions {
 public:
  /// `tolerable` is how many keys two versions may have in common before all is tried again. All must outlive
  /// this.
  ChosenOptions(const ExamPaper& exam, const PinnedParts& pinned, std::size_t tolerable)
      : exam_(exam), pinned_(pinned), tolerable_(tolerable) {}

  /// The order of the options at each place of a version with these questions.
  std::vector<OptionOrder> Choose(const std::vector<int>& questions, SeededRandom& random) const;

  /// Any orders, to find some that are different at all.
  std::vector<OptionOrder> Any(const std::vector<int>& questions, SeededRandom& random) const;

  /// The orders of a version are decided.
  void Keep(const std::vector<int>& questions, const std::vector<OptionOrder>& options);

 private:
  /// The keys by place, 0 where there is none.
  using Keys = std::vector<int>;
  struct Attempt {
    std::vector<OptionOrder> options;
    std::vector<std::size_t> same;  ///< keys in common with each version before
  };
  OptionOrder RandomOrder(int question, SeededRandom& random) const;
  Attempt Try(const std::vector<int>& questions, SeededRandom& random) const;
  std::size_t CostAt(std::size_t place, int key, const std::vector<std::size_t>& same) const;

  const ExamPaper& exam_;
  const PinnedParts& pinned_;
  std::size_t tolerable_;
  std::vector<Keys> kept_;
};

}  // namespace quorvantis
