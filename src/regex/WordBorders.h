// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace quorvantis {

/// Whether a unit is a part of words, as IsWholeWord tells.
bool IsPartOfWord(char16_t unit);

/// Whether the part of `text` from `start` to `end` (UTF-16 units) is not cut out of a longer word: at each
/// of its ends, the units before and after are not both parts of words. Parts of words are the letters,
/// digits and marks of all scripts and the underscore. Chinese, Japanese, Thai, Lao, Burmese and Khmer put no
/// borders between words, so their characters are not parts of words here: every place beside one is a
/// border.
bool IsWholeWord(std::u16string_view text, std::size_t start, std::size_t end);

}  // namespace quorvantis
