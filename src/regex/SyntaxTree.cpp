// SPDX-License-Identifier: MIT
#include "regex/SyntaxTree.h"

#include <algorithm>

namespace quorvantis {
namespace {

struct EmptinessOf {
  bool operator()(const UnitNode&) const { return false; }
  bool operator()(const SequenceNode& node) const {
    return std::ranges::all_of(node.parts, [](const SyntaxTree& part) { return CanBeEmpty(*part); });
  }
  bool operator()(const AlternationNode& node) const {
    return std::ranges::any_of(node.choices, [](const SyntaxTree& choice) { return CanBeEmpty(*choice); });
  }
  bool operator()(const CaptureNode& node) const { return CanBeEmpty(*node.body); }
  bool operator()(const AtomicNode& node) const { return CanBeEmpty(*node.body); }
  bool operator()(const RepeatNode& node) const { return node.min == 0 || CanBeEmpty(*node.body); }
  template <class Other>
  bool operator()(const Other&) const {
    return true;
  }
};

struct OnlyUnitOf {
  using Set = std::shared_ptr<const CharacterSet>;

  Set operator()(const UnitNode& node) const { return node.set; }
  Set operator()(const SequenceNode& node) const {
    return node.parts.size() == 1 ? OnlyUnit(*node.parts.front()) : nullptr;
  }
  Set operator()(const AlternationNode& node) const {
    CharacterSet all;
    for (const SyntaxTree& choice : node.choices) {
      const Set set = OnlyUnit(*choice);
      if (!set) return nullptr;
      all.AddAll(*set);
    }
    return std::make_shared<const CharacterSet>(std::move(all));
  }
  template <class Other>
  Set operator()(const Other&) const {
    return nullptr;
  }
};

}  // namespace

bool CanBeEmpty(const SyntaxNode& tree) {
  return std::visit(EmptinessOf(), tree.value);
}

std::shared_ptr<const CharacterSet> OnlyUnit(const SyntaxNode& tree) {
  return std::visit(OnlyUnitOf(), tree.value);
}

}  // namespace quorvantis
