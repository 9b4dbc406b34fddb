// SPDX-License-Identifier: MIT
#include "search/TextSearch.h"

#include "regex/RegexFlags.h"
#include "regex/WordBorders.h"
#include "search/SearchedText.h"
#include "text/LineBreaks.h"
#include "text/Utf.h"

namespace quorvantis {
namespace {

bool SplitsPair(std::u16string_view text, std::size_t place) {
  return place > 0 && place < text.size() && IsHighSurrogate(text[place - 1]) && IsLowSurrogate(text[place]);
}

bool IsTrue(const SearchCancelled& isCancelled) {
  return isCancelled && isCancelled();
}

}  // namespace

TextSearch::TextSearch(const SearchQuery& query)
    : wholeWords_(query.wholeWords),
      meetsLineEnds_(query.isPattern || query.text.find_first_of(u"\r\n") != std::u16string::npos) {
  if (query.text.empty()) return;
  if (query.isPattern) {
    pattern_.Compile(query.text, regex_flag::kMultiLine | (query.matchCase ? 0 : regex_flag::kIgnoreCase));
  } else {
    literal_.emplace(WithLineEnds(query.text, u"\n"), query.matchCase);
  }
}

SearchEnd TextSearch::Search(std::u16string_view text, const SearchCancelled& isCancelled,
                             const std::function<void(const FoundText&)>& take) const {
  if (IsTrue(isCancelled)) return SearchEnd::Cancelled;
  if (literal_) {
    SearchLiteral(text, take);
    return SearchEnd::Done;
  }
  return pattern_.IsEmpty() ? SearchEnd::Done : SearchPattern(text, isCancelled, take);
}

bool TextSearch::IsHit(std::u16string_view text, std::size_t start, std::size_t end) const {
  if (start >= end || SplitsPair(text, start) || SplitsPair(text, end)) return false;
  return !wholeWords_ || IsWholeWord(text, start, end);
}

void TextSearch::SearchLiteral(std::u16string_view text,
                               const std::function<void(const FoundText&)>& take) const {
  std::size_t from = 0;
  literal_->VisitPlaces(text, [&](std::size_t start) {
    const std::size_t end = start + literal_->Size();
    if (start < from || !IsHit(text, start, end)) return;
    take({start, end, text, nullptr});
    from = end;
  });
}

SearchEnd TextSearch::SearchPattern(std::u16string_view text, const SearchCancelled& isCancelled,
                                    const std::function<void(const FoundText&)>& take) const {
  MatchContext context{.isCancelled = isCancelled};
  for (std::size_t from = 0; from <= text.size();) {
    const MatchResult match = pattern_.Match(text, static_cast<int>(from), &context);
    if (match.Outcome() == MatchOutcome::TooLarge) return SearchEnd::TooLarge;
    if (match.Outcome() == MatchOutcome::Cancelled || IsTrue(isCancelled)) return SearchEnd::Cancelled;
    if (!match.IsMatched()) return SearchEnd::Done;
    const auto start = static_cast<std::size_t>(match.GroupStart(0));
    const auto end = static_cast<std::size_t>(match.GroupEnd(0));
    const bool isHit = IsHit(text, start, end);
    if (isHit) take({start, end, text, &match});
    from = isHit ? end : start + 1;
  }
  return SearchEnd::Done;
}

}  // namespace quorvantis
