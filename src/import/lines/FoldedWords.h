// SPDX-License-Identifier: MIT
// Lists of folded words (FoldedText.h), and texts that begin with one of them.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace quorvantis {

/// The size of the longest of the words that the folded text begins with, 0 for none. Words of the text do
/// not go on behind it, but where no blanks are written between words.
std::size_t LongestWordAt(std::u16string_view folded, std::span<const std::u16string_view> words);

/// What follows the first word of a text, which must not be empty.
std::u16string_view WithoutWord(std::u16string_view text);

}  // namespace quorvantis
