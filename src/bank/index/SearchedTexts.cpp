// SPDX-License-Identifier: MIT
#include "bank/index/SearchedTexts.h"

#include "bank/index/FoldedText.h"
#include "bank/index/ShortWords.h"
#include "text/Utf.h"

namespace quorvantis {
namespace {

/// So that no phrase of a query matches across two of them.
std::u16string JoinedFolded(const std::vector<std::u16string_view>& texts) {
  std::u16string joined;
  for (const std::u16string_view text : texts) {
    if (text.empty()) continue;
    if (!joined.empty()) joined.push_back(kBetweenTexts);
    joined += FoldForSearch(text);
  }
  return joined;
}

}  // namespace

SearchedTexts::SearchedTexts(const QuestionTexts& question) {
  std::u16string all;
  const auto take = [&all](const std::u16string& folded, std::string& column) {
    column = Utf16ToUtf8(folded);
    all += folded;
    all.push_back(kBetweenTexts);
  };
  take(FoldForSearch(question.text), text);
  take(JoinedFolded(question.options), options);
  take(JoinedFolded({question.answer, question.essay}), answers);
  take(JoinedFolded(question.files), files);
  shortTokens = ShortTokens(all);
}

}  // namespace quorvantis
