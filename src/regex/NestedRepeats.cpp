// SPDX-License-Identifier: MIT
#include "regex/NestedRepeats.h"

#include <limits>

namespace quorvantis {
namespace {

RepeatNode* OnlyRepeat(SyntaxNode& tree) {
  if (auto* sequence = std::get_if<SequenceNode>(&tree.value))
    return sequence->parts.size() == 1 ? OnlyRepeat(*sequence->parts.front()) : nullptr;
  if (auto* choices = std::get_if<AlternationNode>(&tree.value))
    return choices->choices.size() == 1 ? OnlyRepeat(*choices->choices.front()) : nullptr;
  return std::get_if<RepeatNode>(&tree.value);
}

/// A number beyond the longest text is not a limit.
int Product(int a, int b) {
  if (a == 0 || b == 0) return 0;
  if (a == kUnlimited || b == kUnlimited || a > std::numeric_limits<int>::max() / b) return kUnlimited;
  return a * b;
}

}  // namespace

/// An inner repetition that needs one unit at most lets the outer one take every number of units from its
/// smallest to its largest. What follows is tried at these numbers, one after the other: of two greedy ones,
/// each number comes up first after the next larger one (one iteration taking one unit more, or one iteration
/// more, is tried before); of two lazy ones, after the next smaller one. That it comes up again later changes
/// nothing, as what follows fails there again.
void MergeNestedRepeat(RepeatNode& outer) {
  RepeatNode* const inner = OnlyRepeat(*outer.body);
  if (!inner || inner->min > 1 || !OnlyUnit(*inner->body)) return;
  const bool isFixed = outer.min == outer.max;
  const bool isAlike = isFixed || outer.mode == inner->mode ||
                       (outer.mode == RepeatMode::Possessive && inner->mode == RepeatMode::Greedy);
  if (!isAlike || inner->mode == RepeatMode::Possessive) return;
  if (isFixed) outer.mode = inner->mode;
  outer.min = Product(outer.min, inner->min);
  outer.max = Product(outer.max, inner->max);
  SyntaxTree unit = std::move(inner->body);  // its owner goes with the old body
  outer.body = std::move(unit);
}

}  // namespace quorvantis
