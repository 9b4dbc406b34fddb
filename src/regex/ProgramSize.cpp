// SPDX-License-Identifier: MIT
#include "regex/ProgramSize.h"

#include <algorithm>
#include <type_traits>
#include <variant>

namespace quorvantis {

std::size_t ProgramSize(const SyntaxNode& tree) {
  return std::visit(
      [](const auto& node) {
        using Node = std::decay_t<decltype(node)>;
        std::size_t size = 2;
        if constexpr (std::is_same_v<Node, SequenceNode>) {
          for (const SyntaxTree& part : node.parts) size += ProgramSize(*part);
        } else if constexpr (std::is_same_v<Node, AlternationNode>) {
          for (const SyntaxTree& choice : node.choices) size += ProgramSize(*choice) + 2;
        } else if constexpr (std::is_same_v<Node, ConditionNode>) {
          size += ProgramSize(*node.whenTrue) + ProgramSize(*node.whenFalse);
          if (node.look) size += ProgramSize(*node.look);
        } else if constexpr (std::is_same_v<Node, RepeatNode>) {
          const std::size_t body = ProgramSize(*node.body);
          const std::size_t all = body * static_cast<std::size_t>(std::max({node.min, node.max, 1}));
          size += OnlyUnit(*node.body) || all > kLargestCopies ? body : all;
        } else if constexpr (requires { node.body; }) {
          size += ProgramSize(*node.body);
        }
        return size;
      },
      tree.value);
}

}  // namespace quorvantis
