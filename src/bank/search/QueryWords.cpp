// SPDX-License-Identifier: MIT
#include "bank/search/QueryWords.h"

#include "bank/index/FoldedText.h"
#include "platform/StringTable.h"
#include "platform/texts/BankTexts.h"

#include <algorithm>
#include <string_view>

namespace quorvantis {
namespace {

// In the order in which each language has them.
constexpr std::u16string_view kFilterNames[] = {u"kind",   u"has",   u"tag",    u"exam",
                                                u"folder", u"after", u"before", u"score"};
constexpr std::u16string_view kKindValues[] = {u"choice", u"fillin", u"essay", u"oral"};
constexpr std::u16string_view kHasValues[] = {u"files", u"key", u"tags"};

/// A list of words with blanks between them, in the order of `english`. What is missing at its end has no
/// translation.
template <std::size_t kCount>
std::map<std::u16string, std::u16string> ReadWordList(std::u16string_view list,
                                                      const std::u16string_view (&english)[kCount]) {
  std::map<std::u16string, std::u16string> words;
  for (const std::u16string_view word : english) {
    const std::u16string translated = FoldForSearch(list.substr(0, list.find(u' ')));
    if (!translated.empty()) words.emplace(translated, word);
    list.remove_prefix(
        std::min(list.size(), list.find(u' ') == list.npos ? list.size() : list.find(u' ') + 1));
  }
  return words;
}

std::u16string EnglishIn(const std::map<std::u16string, std::u16string>& words, const std::u16string& word) {
  const auto found = words.find(word);
  return found == words.end() ? word : found->second;
}

}  // namespace

QueryWords::QueryWords(const StringTable& strings)
    : names_(ReadWordList(strings.Text(text_id::kQueryNames), kFilterNames)),
      kinds_(ReadWordList(strings.Text(text_id::kQueryKinds), kKindValues)),
      parts_(ReadWordList(strings.Text(text_id::kQueryParts), kHasValues)) {
  // A word of another language never takes the place of an English one.
  for (const std::u16string_view word : kFilterNames) names_[std::u16string(word)] = word;
  for (const std::u16string_view word : kKindValues) kinds_[std::u16string(word)] = word;
  for (const std::u16string_view word : kHasValues) parts_[std::u16string(word)] = word;
}

bool QueryWords::IsName(const std::u16string& name) {
  return std::find(std::begin(kFilterNames), std::end(kFilterNames), name) != std::end(kFilterNames);
}

std::u16string QueryWords::NameIn(const std::u16string& folded) const {
  return EnglishIn(names_, folded);
}

std::u16string QueryWords::ValueIn(const std::u16string& name, const std::u16string& folded) const {
  if (name == u"kind") return EnglishIn(kinds_, folded);
  return name == u"has" ? EnglishIn(parts_, folded) : folded;
}

}  // namespace quorvantis
