// SPDX-License-Identifier: MIT
// The meaning of a pattern. RegexParser.h makes these trees, RegexCompiler.h turns them into programs.
#pragma once

#include "regex/CharacterSet.h"

#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace quorvantis {

struct SyntaxNode;
using SyntaxTree = std::unique_ptr<SyntaxNode>;

enum class AssertionKind {
  StartOfText,
  EndOfText,
  EndOfTextOrLastBreak,
  LineStart,
  LineEnd,
  WordBoundary,
  NoWordBoundary,
  PreviousEnd,
};

enum class RepeatMode { Greedy, Lazy, Possessive };

/// A reference to a group: by number if the name is empty. `at` is its position in the pattern.
struct GroupPlace {
  std::u16string name;
  int number = 0;
  std::size_t at = 0;
};

/// One unit of a set; shared, because many places of a pattern use the same set.
struct UnitNode {
  std::shared_ptr<const CharacterSet> set;
};
struct AssertionNode {
  AssertionKind kind;
};
struct SequenceNode {
  std::vector<SyntaxTree> parts;
};
struct AlternationNode {
  std::vector<SyntaxTree> choices;
};
struct CaptureNode {
  int group;
  SyntaxTree body;
};
struct RepeatNode {
  int min;
  int max;  ///< kUnlimited for no limit
  RepeatMode mode;
  SyntaxTree body;
};
struct LookNode {
  bool behind;
  bool negative;
  SyntaxTree body;
};
struct AtomicNode {
  SyntaxTree body;
};
struct BackReferenceNode {
  GroupPlace place;
  bool ignoreCase;
};
struct RecursionNode {
  GroupPlace place;
};
/// A branch on whether a group took part, or on a look-around where `look` is not null.
struct ConditionNode {
  GroupPlace place;
  SyntaxTree look;
  SyntaxTree whenTrue;
  SyntaxTree whenFalse;
};

constexpr int kUnlimited = -1;

struct SyntaxNode {
  std::variant<UnitNode, AssertionNode, SequenceNode, AlternationNode, CaptureNode, RepeatNode, LookNode,
               AtomicNode, BackReferenceNode, RecursionNode, ConditionNode>
      value;
};

template <class Node>
SyntaxTree MakeTree(Node node) {
  return std::make_unique<SyntaxNode>(SyntaxNode{std::move(node)});
}

/// Whether a tree can match without taking a unit; if unknown, it counts as one that can.
bool CanBeEmpty(const SyntaxNode& tree);

/// The set of a tree that always takes exactly one unit; null for every other tree.
std::shared_ptr<const CharacterSet> OnlyUnit(const SyntaxNode& tree);

}  // namespace quorvantis
