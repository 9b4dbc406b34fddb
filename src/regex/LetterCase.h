// SPDX-License-Identifier: MIT
// Letters that differ only in case, the same in every locale.
#pragma once

#include <utility>
#include <vector>

namespace quorvantis {

/// The folded form, which is the same unit for both cases (lower case for most letters). Other units,
/// including surrogates, are their own folded form.
char16_t FoldCase(char16_t unit);

/// Every pair of units with the same folded form: one for a letter with two forms, more for one with more.
const std::vector<std::pair<char16_t, char16_t>>& CasePairs();

/// A letter of ASCII or beyond in its upper or lower case; other units stay unchanged.
char16_t ToLowerCase(char16_t unit);
char16_t ToUpperCase(char16_t unit);

}  // namespace quorvantis
