// SPDX-License-Identifier: MIT
#pragma once

#include "search/TextSearch.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quorvantis {

/// What is put in the place of a hit. For a literal text it stands as it is. For a pattern,
///
///     \0         is the hit, \1 to \9 are what its groups matched (nothing for one that took no part),
///     \n, \t     are a line break and a tab,
///     \\         is a backslash;
///
/// any other backslash stands for itself.
class ReplacementText {
 public:
  ReplacementText(std::u16string_view text, bool isForPattern);

  /// The first group in the text that `search` does not have, if any.
  std::optional<int> UnknownGroup(const TextSearch& search) const;

  /// The text for a hit. Line ends may be of any form.
  std::u16string For(const FoundText& found) const;

 private:
  void Append(std::u16string_view text);

  std::vector<std::variant<std::u16string, int>> parts_;  ///< texts and numbers of groups
};

}  // namespace quorvantis
