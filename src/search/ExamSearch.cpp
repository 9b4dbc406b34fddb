// SPDX-License-Identifier: MIT
#include "search/ExamSearch.h"

#include "model/ExamQuestion.h"
#include "model/FillInAnswers.h"
#include "search/SearchedText.h"

#include <algorithm>

namespace quorvantis {
namespace {

using TakeHit = std::function<void(const SearchHit&, const FoundText&)>;

SearchHit HitOf(const TextPlace& place, std::size_t start, std::size_t end) {
  return {place, static_cast<std::uint32_t>(start), static_cast<std::uint32_t>(end - start)};
}

std::size_t UnitsOf(const FrameSetExam& exam) {
  std::size_t units = 0;
  VisitTexts(exam, [&units](const TextPlace&, const std::u16string& text) { units += text.size(); });
  return units;
}

/// Room for one more hit and, when there must be new room, for as many as the rest of the exam will have if
/// it is like the part that was searched: with half a million hits, copying them to ever larger rooms would
/// take most of the time. Room that is not used costs nothing.
void MakeRoom(std::vector<SearchHit>& hits, std::size_t searched, std::size_t units) {
  constexpr std::size_t kFew = 64;
  if (hits.size() < hits.capacity()) return;
  const std::size_t expected = hits.size() * units / std::max(searched, std::size_t{1});
  hits.reserve(std::max({kFew, 2 * hits.size(), expected + expected / 8}));
}

/// Searches a part of the text at `place`, which begins at `offset`.
SearchEnd SearchPart(const TextPlace& place, std::u16string_view part, std::size_t offset,
                     const TextSearch& search, const SearchCancelled& isCancelled, const TakeHit& take) {
  if (!search.CanMeetLineEnds()) {
    return search.Search(part, isCancelled, [&](const FoundText& found) {
      take(HitOf(place, offset + found.start, offset + found.end), found);
    });
  }
  const SearchedText searched(part);
  return search.Search(searched.Text(), isCancelled, [&](const FoundText& found) {
    const std::size_t start = searched.Original(found.start);
    take(HitOf(place, offset + start, offset + searched.Original(found.end)), found);
  });
}

}  // namespace

SearchEnd SearchPlace(const TextPlace& place, const std::u16string& text, const TextSearch& search,
                      const SearchCancelled& isCancelled, const TakeHit& take) {
  const std::u16string_view whole = text;
  if (place.field != ExamFieldName::FillInAnswer)
    return SearchPart(place, whole, 0, search, isCancelled, take);
  for (const TextSpan& answer : FillInAnswersIn(whole)) {
    const SearchEnd ended = SearchPart(place, answer.Of(whole), answer.begin, search, isCancelled, take);
    if (ended != SearchEnd::Done) return ended;
  }
  return SearchEnd::Done;
}

SearchOutcome FindAll(const FrameSetExam& exam, const TextSearch& search,
                      const SearchCancelled& isCancelled) {
  SearchOutcome outcome;
  const std::size_t units = UnitsOf(exam);
  std::size_t searched = 0;
  const TakeHit take = [&](const SearchHit& hit, const FoundText&) {
    MakeRoom(outcome.hits, searched, units);
    outcome.hits.push_back(hit);
  };
  VisitTexts(exam, [&](const TextPlace& place, const std::u16string& text) {
    if (outcome.end != SearchEnd::Done) return;
    searched += text.size();
    outcome.end = SearchPlace(place, text, search, isCancelled, take);
    if (outcome.end != SearchEnd::Done) outcome.stoppedAt = place;
  });
  return outcome;
}

}  // namespace quorvantis
