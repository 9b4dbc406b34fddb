// SPDX-License-Identifier: MIT
#include "import/lines/FoldedWords.h"

#include "import/lines/FoldedText.h"

#include <algorithm>

namespace quorvantis {

std::size_t LongestWordAt(std::u16string_view folded, std::span<const std::u16string_view> words) {
  std::size_t longest = 0;
  if (folded.empty()) return longest;
  for (const std::u16string_view word : words) {
    // Nearly all words end here, which comparing whole ones would take far longer to tell.
    if (word.front() != folded.front()) continue;
    const bool isHere = folded.starts_with(word) &&
                        (folded.size() == word.size() || !AreInOneWord(word.back(), folded[word.size()]) ||
                         word.front() >= 0x3041);
    if (isHere) longest = std::max(longest, word.size());
  }
  return longest;
}

std::u16string_view WithoutWord(std::u16string_view text) {
  std::size_t size = 1;
  while (size < text.size() && AreInOneWord(text[size - 1], text[size])) ++size;
  return text.substr(size);
}

}  // namespace quorvantis
