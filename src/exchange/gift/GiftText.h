// SPDX-License-Identifier: MIT
// The text of GIFT, in which a backslash protects the characters that mean something.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// The first unprotected character of `wanted` in `text` from `from` on; npos if there is none.
std::size_t FindUnprotected(std::u16string_view text, std::u16string_view wanted, std::size_t from = 0);

/// The first unprotected `word`; npos if there is none.
std::size_t FindUnprotectedWord(std::u16string_view text, std::u16string_view word);

/// Without the backslashes that protect something; "\n" is a line end.
std::u16string Unprotected(std::u16string_view text);

/// With backslashes that protect everything that means something; a line end is "\n".
std::u16string Protected(std::u16string_view text);

/// What stands between two blank lines, without lines that are comments.
struct GiftBlock {
  std::u16string text{};
  bool hasTags = false;  ///< in a comment
};

/// The text cut where blank lines separate questions. A blank line inside braces separates nothing, as long
/// as they are closed before others are opened. A title or a category in a new line below answers begins
/// another question, too.
std::vector<GiftBlock> GiftBlocks(std::u16string_view text);

}  // namespace quorvantis
