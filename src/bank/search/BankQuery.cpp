// SPDX-License-Identifier: MIT
#include "bank/search/BankQuery.h"

#include "bank/index/FoldedText.h"
#include "bank/search/QueryFilters.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::u16string_view kQuotes = u"\"\u201C\u201D\u201E\uFF02\u00AB\u00BB";

bool IsQuote(char16_t unit) {
  return kQuotes.find(unit) != kQuotes.npos;
}

/// Blanks of all kinds, which the folded form has as one.
bool IsBlank(char16_t unit) {
  return unit == u' ' || unit == u'\t' || unit == u'\n' || unit == u'\r' || unit == u'\u00A0' ||
         unit == u'\u3000';
}

/// Cuts a query into its parts, which blanks part outside quotation marks.
class QueryReader {
 public:
  QueryReader(std::u16string_view text, const QueryWords& words) : text_(text), words_(words) {}

  /// False at the end.
  bool Next(QueryPart& part) {
    while (at_ < text_.size() && IsBlank(text_[at_])) ++at_;
    if (at_ == text_.size()) return false;
    part = {};
    const std::size_t begin = at_;
    if (text_[at_] == u'-' && at_ + 1 < text_.size() && !IsBlank(text_[at_ + 1])) {
      part.isExcluded = true;
      ++at_;
    }
    if (IsQuote(text_[at_])) {
      part.value = Quoted();
      part.isQuoted = true;
    } else {
      ReadWord(part);
    }
    part.whole = text_.substr(begin + (part.isExcluded ? 1 : 0), at_ - begin - (part.isExcluded ? 1 : 0));
    part.isLast = at_ == text_.size();
    return true;
  }

 private:
  /// What stands in quotation marks; a missing second one is at the end.
  std::u16string Quoted() {
    const std::size_t begin = ++at_;
    while (at_ < text_.size() && !IsQuote(text_[at_])) ++at_;
    const std::u16string inside(text_.substr(begin, at_ - begin));
    if (at_ < text_.size()) ++at_;
    return inside;
  }

  void ReadWord(QueryPart& part) {
    while (at_ < text_.size() && !IsBlank(text_[at_]) && !IsQuote(text_[at_])) {
      const char16_t unit = text_[at_++];
      if ((unit != u':' && unit != u'\uFF1A') || !part.name.empty() || part.value.empty()) {
        part.value.push_back(unit);
        continue;
      }
      part.name = words_.NameIn(FoldForSearch(part.value));
      part.value.clear();
      if (at_ < text_.size() && IsQuote(text_[at_])) {
        part.value = Quoted();
        return;
      }
    }
  }

  std::u16string_view text_;
  const QueryWords& words_;
  std::size_t at_ = 0;
};

}  // namespace

BankQuery ParseBankQuery(std::u16string_view text, bool isTyping, const QueryWords& words) {
  BankQuery query;
  QueryReader reader(text.substr(0, kMostQueryUnits), words);
  for (QueryPart part; reader.Next(part);) {
    part.isBegun = isTyping && part.isLast && !part.isQuoted && !IsQuote(part.whole.back());
    if (!part.name.empty() && TakeFilter(part, words, query)) continue;
    if (part.isBegun && part.value.empty() && QueryWords::IsName(part.name)) continue;
    const std::u16string folded = FoldForSearch(part.isQuoted ? std::u16string_view(part.value) : part.whole);
    if (folded.empty()) continue;
    const BankTerm term{folded, part.isExcluded, part.isBegun};
    if (std::find(query.terms.begin(), query.terms.end(), term) == query.terms.end())
      query.terms.push_back(term);
  }
  return query;
}

}  // namespace quorvantis
