// SPDX-License-Identifier: MIT
#include "search/SearchedText.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// Calls `plain` with each line and `end` with the units of each line end.
template <class Plain, class End>
void SplitLines(std::u16string_view text, Plain plain, End end) {
  while (!text.empty()) {
    const std::size_t size = std::min(text.find_first_of(u"\r\n"), text.size());
    plain(text.substr(0, size));
    text.remove_prefix(size);
    if (text.empty()) return;
    const std::size_t units = text.starts_with(u"\r\n") ? 2 : 1;
    end(units);
    text.remove_prefix(units);
  }
}

}  // namespace

SearchedText::SearchedText(std::u16string_view original)
    : original_(original), lineEnds_(original.find(u'\r') != std::u16string_view::npos) {
  if (!lineEnds_) return;
  own_.reserve(original.size());
  SplitLines(
      original, [this](std::u16string_view line) { own_ += line; },
      [this](std::size_t units) {
        if (units == 2) pairs_.push_back(own_.size());
        own_.push_back(u'\n');
      });
}

std::size_t SearchedText::Original(std::size_t place) const {
  return place + static_cast<std::size_t>(std::ranges::lower_bound(pairs_, place) - pairs_.begin());
}

std::u16string WithLineEnds(std::u16string_view text, std::u16string_view lineEnd) {
  std::u16string result;
  result.reserve(text.size());
  SplitLines(
      text, [&](std::u16string_view line) { result += line; }, [&](std::size_t) { result += lineEnd; });
  return result;
}

}  // namespace quorvantis
