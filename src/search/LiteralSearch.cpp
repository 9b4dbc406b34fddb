// SPDX-License-Identifier: MIT
#include "search/LiteralSearch.h"

#include "regex/LetterCase.h"

#include <algorithm>

namespace quorvantis {
namespace {

std::u16string Folded(std::u16string_view text) {
  std::u16string folded(text);
  std::ranges::transform(folded, folded.begin(), FoldCase);
  return folded;
}

std::shared_ptr<const CharacterSet> FormsOf(char16_t unit, bool matchCase) {
  CharacterSet forms;
  forms.Add(unit);
  if (!matchCase) forms.CloseUnderCase();
  return std::make_shared<const CharacterSet>(std::move(forms));
}

}  // namespace

LiteralSearch::LiteralSearch(std::u16string_view wanted, bool matchCase)
    : matchCase_(matchCase),
      wanted_(matchCase ? std::u16string(wanted) : Folded(wanted)),
      first_(FormsOf(wanted.front(), matchCase)) {}

std::size_t LiteralSearch::Find(std::u16string_view text, std::size_t from) const {
  if (text.size() < wanted_.size()) return std::u16string_view::npos;
  const std::u16string_view places = text.substr(0, text.size() - wanted_.size() + 1);
  for (std::size_t at = first_.Find(places, from); at < places.size(); at = first_.Find(places, at + 1)) {
    if (StandsAt(text.data() + at)) return at;
  }
  return std::u16string_view::npos;
}

/// The first unit has been found already.
bool LiteralSearch::StandsAt(const char16_t* place) const {
  for (std::size_t i = 1; i < wanted_.size(); ++i) {
    if (place[i] != wanted_[i] && (matchCase_ || FoldCase(place[i]) != wanted_[i])) return false;
  }
  return true;
}

}  // namespace quorvantis
