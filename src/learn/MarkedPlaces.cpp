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
  constexpr std::size_t kLongestBeforeAnswer = 40;
  for (const PaperMark& mark : marks_) {
    if (mark.role != PaperRole::Answer) continue;
    const std::size_t place = std::min(mark.span.begin, source.size());
    const TextSpan before = Trimmed(source, {LineBeginBefore(source, place), place});
    if (!before.IsEmpty() && before.Size() <= kLongestBeforeAnswer) texts.emplace(before.Of(source));
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
  // A selection by hand is seldom exact; but an option that goes on behind its mark holds what is none of it.
  constexpr std::size_t kTenths = 6;
  return all > 0 && same * 10 >= all * kTenths && !GoesOnBehind(mark, roles);
}

/// Rules leave out whole lines; no layout is better for a word that cannot be left out.
bool MarkedPlaces::CanBeFollowed(const PaperMark& mark) const {
  if (mark.role != PaperRole::Heading && mark.role != PaperRole::NotExam) return true;
  const std::u16string_view source = paper_.source.characters;
  const TextSpan span = Trimmed(source, Within(mark.span, source.size()));
  return BeginsLine(source, span.begin) &&
         SkipBlanks(source, span.end, source.size()) == LineEndAfter(source, span.end);
}

/// Whether lines behind a marked option have become part of it.
bool MarkedPlaces::GoesOnBehind(const PaperMark& mark, const std::vector<RolePart>& roles) const {
  if (mark.role != PaperRole::Option) return false;
  const std::u16string_view source = paper_.source.characters;
  const std::size_t lineEnd = LineEndAfter(source, std::min(mark.span.end, source.size()));
  const TextSpan behind = Trimmed(source, {lineEnd, source.size()});
  const auto partAt = [&roles](std::size_t place) {
    return std::ranges::lower_bound(roles, place + 1, {}, [](const RolePart& part) { return part.span.end; });
  };
  const auto own = partAt(mark.span.begin);
  const auto next = partAt(behind.begin);
  if (own == roles.end() || next == roles.end() || behind.IsEmpty()) return false;
  return next->role == PaperRole::Option && own->role == PaperRole::Option &&
         next->question == own->question && BelongTogether(own, next);
}

/// Whether nothing but blanks stands between two parts.
bool MarkedPlaces::BelongTogether(std::vector<RolePart>::const_iterator one,
                                  std::vector<RolePart>::const_iterator other) {
  return std::all_of(one, other, [](const RolePart& part) {
    return part.role == PaperRole::Option || part.role == PaperRole::None;
  });
}

std::set<std::u16string> MarkedPlaces::LinesBehindOptions(const std::vector<RolePart>& roles) const {
  std::set<std::u16string> lines;
  const std::u16string_view source = paper_.source.characters;
  for (const PaperMark& mark : marks_) {
    if (!GoesOnBehind(mark, roles)) continue;
    const std::size_t lineEnd = LineEndAfter(source, std::min(mark.span.end, source.size()));
    const TextSpan behind = Trimmed(source, {lineEnd, source.size()});
    lines.emplace(source.substr(behind.begin, LineEndAfter(source, behind.begin) - behind.begin));
  }
  return lines;
}

double MarkedPlaces::Followed(const std::vector<RolePart>& roles) const {
  double all = 0;
  double followed = 0;
  for (const PaperMark& mark : marks_) {
    if (!CanBeFollowed(mark)) continue;
    all += 1;
    if (IsFollowed(mark, roles)) followed += 1;
  }
  return all > 0 ? followed / all : 1;
}

std::vector<std::size_t> MarkedPlaces::Unfollowed(const std::vector<RolePart>& roles) const {
  std::vector<std::size_t> unfollowed;
  for (std::size_t i = 0; i < marks_.size(); ++i) {
    if (!IsFollowed(marks_[i], roles)) unfollowed.push_back(i);
  }
  return unfollowed;
}

}  // namespace quorvantis
