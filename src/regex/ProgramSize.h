// SPDX-License-Identifier: MIT
#pragma once

#include "regex/SyntaxTree.h"

#include <cstddef>

namespace quorvantis {

/// A counted body whose copies would take more instructions than this is not copied but counted.
inline constexpr std::size_t kLargestCopies = 2'000;

/// About how many instructions a tree takes. A body that is counted rather than copied counts once.
std::size_t ProgramSize(const SyntaxNode& tree);

}  // namespace quorvantis
