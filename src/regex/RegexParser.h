// SPDX-License-Identifier: MIT
#pragma once

#include "regex/SyntaxTree.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvantis {

using GroupNames = std::vector<std::pair<std::u16string, int>>;

/// A parsed pattern.
struct ParsedPattern {
  SyntaxTree tree;
  int groupCount = 0;  ///< capture groups, without the whole match
  GroupNames names;    ///< of named groups, in their order
};

/// The first stage of compilation: from the text of a pattern to its tree. `flags` are those of RegexFlags.h.
/// Throws RegexError.
ParsedPattern ParseRegex(std::u16string_view pattern, int flags);

/// The number of the first group with a name, without regard to the case of ASCII letters; 0 for none.
int FindGroup(const GroupNames& names, std::u16string_view name);

}  // namespace quorvantis
