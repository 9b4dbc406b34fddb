// SPDX-License-Identifier: MIT
#include "search/LiteralSearch.h"

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

}  // namespace quorvantis
