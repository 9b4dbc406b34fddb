// SPDX-License-Identifier: MIT
#include "bank/tags/TypedTags.h"

#include "bank/tags/TagEntry.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// The commas and semicolons of keyboards for Latin, Chinese and Arabic.
constexpr std::u16string_view kBetweenTags = u",;\n\uFF0C\u3001\uFF1B\u060C\u061B";
constexpr char16_t kTagQuote = u'"';

std::size_t BehindBlanks(std::u16string_view line, std::size_t at) {
  while (at < line.size() && IsBlankInTag(line[at])) ++at;
  return at;
}

/// The end of the tag that begins at `begin`: where its sign stands, or the end of the line.
std::size_t EndOfTag(std::u16string_view line, std::size_t begin) {
  const std::size_t usual = std::min(line.find_first_of(kBetweenTags, begin), line.size());
  const std::size_t open = BehindBlanks(line, begin);
  if (open == line.size() || line[open] != kTagQuote) return usual;
  const std::size_t close = line.find(kTagQuote, open + 1);
  if (close == line.npos) return line.size();
  const std::size_t behind = BehindBlanks(line, close + 1);
  const bool isAround = behind == line.size() || kBetweenTags.find(line[behind]) != kBetweenTags.npos;
  return isAround ? behind : usual;
}

}  // namespace

std::vector<TextSpan> TypedTagsIn(std::u16string_view line) {
  std::vector<TextSpan> places;
  for (std::size_t begin = 0; begin <= line.size();) {
    const std::size_t end = EndOfTag(line, begin);
    places.push_back({begin, end});
    begin = end + 1;
  }
  return places;
}

std::u16string_view TypedTag(std::u16string_view typed) {
  typed.remove_prefix(BehindBlanks(typed, 0));
  while (!typed.empty() && IsBlankInTag(typed.back())) typed.remove_suffix(1);
  if (!typed.starts_with(kTagQuote)) return typed;
  const std::size_t close = typed.find(kTagQuote, 1);
  const bool isAround = close == typed.npos || close + 1 == typed.size();
  return isAround ? typed.substr(1, close == typed.npos ? close : close - 1) : typed;
}

std::u16string TypedFormOf(std::u16string_view tag) {
  std::u16string typed(tag);
  if (tag.find_first_of(kBetweenTags) == tag.npos) return typed;
  typed.insert(typed.begin(), kTagQuote);
  typed += kTagQuote;
  return typed;
}

}  // namespace quorvantis
