// SPDX-License-Identifier: MIT
#include "learn/RoleLookup.h"

#include "import/labels/LineText.h"

#include <algorithm>

namespace quorvantis {
namespace {

bool IsWhite(char16_t unit) {
  return IsBlank(unit) || IsLineEnd(unit);
}

template <class Fits>
std::optional<std::size_t> IndexOfMark(const std::vector<PaperMark>& marks, Fits fits) {
  const auto found = std::find_if(marks.begin(), marks.end(), fits);
  if (found == marks.end()) return std::nullopt;
  return static_cast<std::size_t>(found - marks.begin());
}

}  // namespace

RoleLookup::RoleLookup(const std::vector<RolePart>& roles) : roles_(&roles) {
  int last = -1;
  for (const RolePart& part : roles) {
    if (part.question < 0 || part.role == PaperRole::None) continue;
    const auto question = static_cast<std::size_t>(part.question);
    if (question >= places_.size()) places_.resize(question + 1);
    TextSpan& place = places_[question];
    if (place.IsEmpty()) {
      place = part.span;
      begins_.push_back(part.span.begin);
      questions_.push_back(part.question);
    } else if (last == part.question) {
      place.end = part.span.end;
    }
    last = part.question;
  }
}

std::optional<std::size_t> RoleLookup::PartAt(std::size_t place) const {
  if (roles_ == nullptr) return std::nullopt;
  const auto behind =
      std::upper_bound(roles_->begin(), roles_->end(), place,
                       [](std::size_t at, const RolePart& part) { return at < part.span.begin; });
  if (behind == roles_->begin() || !std::prev(behind)->span.Contains(place)) return std::nullopt;
  return static_cast<std::size_t>(std::prev(behind) - roles_->begin());
}

PaperRole RoleLookup::RoleAt(std::size_t place) const {
  const std::optional<std::size_t> part = PartAt(place);
  return part ? (*roles_)[*part].role : PaperRole::None;
}

int RoleLookup::QuestionAt(std::size_t place) const {
  const std::optional<std::size_t> part = PartAt(place);
  if (part && (*roles_)[*part].question >= 0) return (*roles_)[*part].question;
  const auto behind = std::upper_bound(begins_.begin(), begins_.end(), place);
  return behind == begins_.begin() ? -1 : questions_[static_cast<std::size_t>(behind - begins_.begin()) - 1];
}

std::optional<TextSpan> RoleLookup::PlaceOf(int question) const {
  const auto index = static_cast<std::size_t>(question);
  if (question < 0 || index >= places_.size() || places_[index].IsEmpty()) return std::nullopt;
  return places_[index];
}

bool IsUnderstoodAs(std::u16string_view paper, const RoleLookup& lookup, TextSpan span, PaperRole role) {
  if (span.IsEmpty()) return false;
  const int question = lookup.QuestionAt(span.begin);
  for (std::size_t at = span.begin; at < span.end; ++at) {
    if (IsWhite(paper[at])) continue;
    if (lookup.RoleAt(at) != role || lookup.QuestionAt(at) != question) return false;
  }
  if (role != PaperRole::Question && role != PaperRole::Option) return true;
  std::size_t before = span.begin;
  while (before > 0 && IsWhite(paper[before - 1])) --before;
  return before == 0 || lookup.RoleAt(before - 1) != role;
}

std::optional<std::size_t> MarkAt(const std::vector<PaperMark>& marks, std::size_t place) {
  return IndexOfMark(
      marks, [place](const PaperMark& mark) { return mark.span.Contains(place) || mark.span.end == place; });
}

std::optional<std::size_t> MarkIn(const std::vector<PaperMark>& marks, TextSpan part) {
  return IndexOfMark(marks, [part](const PaperMark& mark) { return mark.span.Overlaps(part); });
}

}  // namespace quorvantis
