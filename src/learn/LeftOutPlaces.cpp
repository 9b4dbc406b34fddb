// SPDX-License-Identifier: MIT
#include "learn/LeftOutPlaces.h"

#include "import/labels/LineText.h"

#include <algorithm>

namespace quorvantis {

LeftOutPlaces::LeftOutPlaces(const Paper& paper, const RoleLookup& roles)
    : paper_(paper), roles_(roles), text_(paper.source.characters) {
  std::replace_if(
      text_.begin(), text_.end(), [](char16_t unit) { return unit < u' ' || IsLineEnd(unit); }, u' ');
}

std::optional<TextSpan> LeftOutPlaces::Find(std::u16string_view beginning) {
  if (beginning.ends_with(u'\u2026')) beginning.remove_suffix(1);  // it goes on behind the dots
  if (beginning.empty()) return std::nullopt;
  std::optional<std::size_t> found = FindFrom(last_, beginning);
  if (!found && last_ > 0) found = FindFrom(0, beginning);
  if (!found) return std::nullopt;
  last_ = *found + beginning.size();
  return TextSpan{*found, LineEndAfter(paper_.source.characters, *found)};
}

/// Not where the same text has been understood.
std::optional<std::size_t> LeftOutPlaces::FindFrom(std::size_t place, std::u16string_view beginning) const {
  for (std::size_t at = text_.find(beginning, place); at != text_.npos; at = text_.find(beginning, at + 1)) {
    const PaperRole role = roles_.RoleAt(at);
    if (role == PaperRole::None || role == PaperRole::NotExam) return at;
  }
  return std::nullopt;
}

}  // namespace quorvantis
