// SPDX-License-Identifier: MIT
#include "bank/tags/TagEntry.h"

#include "likeness/QuestionRelation.h"
#include "regex/LetterCase.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::size_t kLongestTag = 100;  // UTF-16 units

}  // namespace

bool IsBlankInTag(char16_t unit) {
  return unit <= u' ' || (unit >= 0x7F && unit <= 0xA0) || unit == 0x3000 || unit == 0x2028 || unit == 0x2029;
}

std::optional<std::u16string> CleanTag(std::u16string_view tag) {
  std::u16string clean;
  for (const char16_t unit : tag) {
    if (!IsBlankInTag(unit)) {
      clean += unit;
    } else if (!clean.empty() && clean.back() != u' ') {
      clean += u' ';
    }
    if (clean.size() > kLongestTag + 1) return std::nullopt;
  }
  if (clean.ends_with(u' ')) clean.pop_back();
  if (clean.empty() || clean.size() > kLongestTag) return std::nullopt;
  return ReplaceLoneSurrogates(clean);
}

bool IsSameTag(std::u16string_view a, std::u16string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char16_t inA, char16_t inB) { return FoldCase(inA) == FoldCase(inB); });
}

bool HasTag(const std::vector<std::u16string>& tags, std::u16string_view tag) {
  return std::any_of(tags.begin(), tags.end(),
                     [tag](const std::u16string& each) { return IsSameTag(each, tag); });
}

std::optional<FoundTags> FindTags(const TagEntries& entries, std::string_view key,
                                  const QuestionSketch& sketch) {
  const auto own = entries.find(key);
  if (own != entries.end() && !own->second.tags.empty()) return FoundTags{own->first, 1};
  const ShortSketch wanted(sketch);
  std::optional<FoundTags> best;
  for (const auto& [other, entry] : entries) {
    if (entry.tags.empty()) continue;
    const double likeness = wanted.Likeness(entry.sketch);
    if (likeness >= kAlike && (!best || likeness > best->likeness)) best = FoundTags{other, likeness};
  }
  return best;
}

}  // namespace quorvantis
