// SPDX-License-Identifier: MIT
#include "search/SearchedText.h"

#include "regex/UnitSearch.h"

#include <algorithm>

namespace quorvantis {

SearchedText::SearchedText(std::u16string_view original) : original_(original) {
  static const UnitSearch kReturns(std::make_shared<const CharacterSet>(CharacterSet::Of(u"\r")));
  std::size_t done = 0;
  for (std::size_t at = kReturns.Find(original, 0); at < original.size();
       at = kReturns.Find(original, done)) {
    if (done == 0) own_.reserve(original.size());
    own_ += original.substr(done, at - done);
    const bool isPair = original.substr(at, 2) == u"\r\n";
    if (isPair) pairs_.push_back(own_.size());
    own_.push_back(u'\n');
    done = at + (isPair ? 2 : 1);
  }
  isOwn_ = done > 0;
  if (isOwn_) own_ += original.substr(done);
}

std::size_t SearchedText::Original(std::size_t place) const {
  return place + static_cast<std::size_t>(std::ranges::lower_bound(pairs_, place) - pairs_.begin());
}

}  // namespace quorvantis
