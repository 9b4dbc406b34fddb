// SPDX-License-Identifier: MIT
#include "learn/MarkedPlaces.h"

#include "import/labels/LineText.h"

#include <algorithm>
#include <array>

namespace quorvantis {
namespace {

TextSpan Within(TextSpan span, std::size_t size) {
  return {std::min(span.begin, size), std::min(span.end, size)};
}

}  // namespace

std::vector<TextSpan> MarkedPlaces::PlacesIn(const PaperText& text, PaperRole role) const {
  std::vector<TextSpan> places;
  for (const PaperMark& mark : marks_) {
    if (mark.role != role) continue;
    TextSpan place{text.Size(), 0};
    for (std::size_t at = 0; at < text.Size(); ++at) {
      if (text.origins[at] == kInserted || !mark.span.Contains(text.origins[at])) continue;
      place.begin = std::min(place.begin, at);
      place.end = at + 1;
    }
    if (place.begin < place.end) places.push_back(place);
  }
  return places;
}

std::set<std::u16string> MarkedPlaces::Texts(PaperRole role) const {
  std::set<std::u16string> texts;
  const std::u16string_view source = paper_.source.characters;
  for (const PaperMark& mark : marks_) {
    if (mark.role != role) continue;
    const TextSpan span = Trimmed(source, Within(mark.span, source.size()));
    if (!span.IsEmpty()) texts.emplace(span.Of(source));
  }
  return texts;
}

std::set<std::u16string> MarkedPlaces::TextsBeforeAnswers() const {
  std::set<std::u16string> texts;
  const std::u16string_view source = paper_.source.characters;
  constexpr std::size_t kLongestLabel = 40;
  for (const PaperMark& mark : marks_) {
    if (mark.role != PaperRole::Answer) continue;
    const std::size_t place = std::min(mark.span.begin, source.size());
    const TextSpan before = Trimmed(source, {LineBeginBefore(source, place), place});
    if (!before.IsEmpty() && before.Size() <= kLongestLabel) texts.emplace(before.Of(source));
  }
  return texts;
}

bool MarkedPlaces::IsFollowed(const PaperMark& mark, const std::vector<RolePart>& roles) const {
  std::size_t all = 0;
  std::size_t same = 0;
  const std::u16string_view source = paper_.source.characters;
  auto part =
      std::ranges::lower_bound(roles, mark.span.begin, {}, [](const RolePart& p) { return p.span.end; });
  for (; part != roles.end() && part->span.begin < mark.span.end; ++part) {
    const std::size_t end = std::min(part->span.end, mark.span.end);
    for (std::size_t at = std::max(part->span.begin, mark.span.begin); at < end; ++at) {
      if (IsBlank(source[at]) || IsLineEnd(source[at])) continue;
      ++all;
      if (part->role == mark.role) ++same;
    }
  }
  // A selection by hand is seldom exact.
  constexpr std::size_t kTenths = 6;
  return all > 0 && same * 10 >= all * kTenths;
}

double MarkedPlaces::Followed(const std::vector<RolePart>& roles) const {
  if (marks_.empty()) return 1;
  return 1 - static_cast<double>(Unfollowed(roles).size()) / static_cast<double>(marks_.size());
}

std::vector<std::size_t> MarkedPlaces::Unfollowed(const std::vector<RolePart>& roles) const {
  std::vector<std::size_t> unfollowed;
  for (std::size_t i = 0; i < marks_.size(); ++i) {
    if (!IsFollowed(marks_[i], roles)) unfollowed.push_back(i);
  }
  return unfollowed;
}

}  // namespace quorvantis
