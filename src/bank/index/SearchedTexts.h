// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// The texts of a question that are searched, as its exam has them. The options and answers of a kind that
/// has none are empty.
struct QuestionTexts {
  std::u16string_view text;
  std::vector<std::u16string_view> options;
  std::u16string_view answer;
  std::u16string_view essay;
  std::vector<std::u16string_view> files;  ///< names
};

/// The same as the full-text tables get them: folded, in UTF-8.
struct SearchedTexts {
  explicit SearchedTexts(const QuestionTexts& question);

  std::string text;
  std::string options;
  std::string answers;
  std::string files;
  std::string shortTokens;
};

}  // namespace quorvantis
