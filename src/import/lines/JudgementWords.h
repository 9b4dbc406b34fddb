// SPDX-License-Identifier: MIT
// The words and marks for "true" and "false" in answers.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace quorvantis {

/// What a paper writes for "true" and for "false". To teach the program others, add a row.
struct JudgementPair {
  std::u16string_view right;
  std::u16string_view wrong;
};

std::span<const JudgementPair> JudgementPairs();

/// A word or mark of some pair.
struct JudgementWord {
  std::size_t pair = 0;  ///< in JudgementPairs
  bool isRight = false;
  std::size_t size = 0;  ///< in UTF-16 units, as written
};

/// The longest words at the begin of a text, in any letter case, that do not go on as a longer word. "F"
/// belongs to several pairs.
std::vector<JudgementWord> JudgementWordsAt(std::u16string_view text);

}  // namespace quorvantis
