// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace quorvantis {

/// What a search compares instead of a UTF-16 unit: mostly its small letter without accents. Empty for what a
/// search passes over: accents by themselves, vowel signs of Arabic and Hebrew, invisible characters. A blank
/// for control characters and all kinds of blanks. The view stays valid.
std::u16string_view FoldedLetter(const char16_t& unit);

}  // namespace quorvantis
