// SPDX-License-Identifier: MIT
// Writes pieces of patterns.
#pragma once

#include <set>
#include <string>
#include <string_view>

namespace quorvantis {

/// A pattern that matches just this text. Blanks become "any blanks".
std::u16string LiteralPattern(std::u16string_view text);

/// A class of these units, "[.)]"; a single unit is escaped where it must be. Empty for none.
std::u16string ClassPattern(const std::set<char16_t>& units);

/// "a", or "(?:a|b|c)" for several; the longest first, since the first that fits counts.
std::u16string OneOfPattern(const std::set<std::u16string>& patterns);

}  // namespace quorvantis
