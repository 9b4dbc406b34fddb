// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/ExamTexts.h"
#include "search/TextSearch.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace quorvantis {

class FrameSetExam;

/// A place in an exam that fits the query. Small, because a letter has hundreds of thousands of hits in a
/// large exam.
struct SearchHit {
  TextPlace place;
  std::uint32_t start = 0;   ///< in the text at the place, in UTF-16 units; so is the next
  std::uint32_t length = 0;  ///< at least 1; a line break (CR LF) counts as two

  bool operator==(const SearchHit&) const = default;
};

/// The hits in an exam, in the order of the document.
struct SearchOutcome {
  std::vector<SearchHit> hits;
  SearchEnd end = SearchEnd::Done;
  TextPlace stoppedAt;  ///< the text that was not searched to its end, unless Done
};

/// Searches every text of an exam (see VisitTexts). The answers to a fill-in question are searched one by
/// one, so no hit touches the separator between them.
SearchOutcome FindAll(const FrameSetExam& exam, const TextSearch& search,
                      const SearchCancelled& isCancelled = {});

/// The same for the text of one place: calls `take` with each hit and what the search tells of it.
SearchEnd SearchPlace(const TextPlace& place, const std::u16string& text, const TextSearch& search,
                      const SearchCancelled& isCancelled,
                      const std::function<void(const SearchHit&, const FoundText&)>& take);

}  // namespace quorvantis
