// SPDX-License-Identifier: MIT
#include "likeness/TextSketch.h"

#include "regex/LetterCase.h"
#include "text/AsciiCase.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// ASCII punctuation, which typing slips change; signs of formulas count.
bool IsPunctuation(char16_t unit) {
  constexpr std::u16string_view kPunctuation = u"!\"',.:;?`()[]{}_";
  constexpr std::u16string_view kWide =
      u"\u00AB\u00BB\u2018\u2019\u201C\u201D\u2026\u3001\u3002\uFF01\uFF08"
      u"\uFF09\uFF0C\uFF1A\uFF1B\uFF1F\u060C\u061B\u061F";
  return (unit < 0x80 ? kPunctuation : kWide).find(unit) != std::u16string_view::npos;
}

bool IsBlankBetweenWords(char16_t unit) {
  return unit <= u' ' || unit == u'\u00A0' || unit == u'\u3000';
}

/// The end of the tag at `begin`, or `begin` if it is none.
std::size_t EndOfTag(std::u16string_view text, std::size_t begin) {
  constexpr std::size_t kLongest = 64;
  const auto isLetter = [](char16_t unit) { return (unit | 0x20) >= u'a' && (unit | 0x20) <= u'z'; };
  const std::u16string_view tag = text.substr(begin, kLongest);
  const std::size_t name = tag.starts_with(u"</") ? 2 : 1;
  const std::size_t end = tag.find(u'>');
  return end != tag.npos && end > name && isLetter(tag[name]) ? begin + end + 1 : begin;
}

/// A hash of `size` units that spreads well.
std::uint32_t HashOf(const char16_t* units, std::size_t size) {
  std::uint64_t hash = 0x9E3779B97F4A7C15;
  for (std::size_t i = 0; i < size; ++i) hash = (hash ^ units[i]) * 0xD6E8FEB86659FD93;
  return static_cast<std::uint32_t>((hash ^ (hash >> 32)) * 0x9E3779B97F4A7C15 >> 32);
}

}  // namespace

std::u16string Normalised(std::u16string_view text) {
  std::u16string normalised;
  normalised.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char16_t unit = text[at];
    const std::size_t tagEnd = unit == u'<' ? EndOfTag(text, at) : at;
    if (tagEnd > at) {
      at = tagEnd - 1;
    } else if (!IsBlankBetweenWords(unit) && !IsPunctuation(unit)) {
      normalised.push_back(unit < 0x80 ? AsciiLower(unit) : FoldCase(unit));
    } else if (!normalised.empty() && normalised.back() != u' ') {
      normalised.push_back(u' ');
    }
  }
  if (normalised.ends_with(u' ')) normalised.pop_back();
  return normalised;
}

TextSketch::TextSketch(std::u16string_view normalised) {
  if (normalised.empty()) return;
  constexpr std::size_t kCollected = kMost * 4;  // sorted out at a time
  std::uint32_t limit = UINT32_MAX;
  const std::size_t size = std::min(kShingle, normalised.size());
  for (std::size_t at = 0; at + size <= normalised.size(); ++at) {
    const std::uint32_t hash = HashOf(normalised.data() + at, size);
    if (hash > limit) continue;
    hashes_.push_back(hash);
    if (hashes_.size() < kCollected) continue;
    KeepSmallest();
    if (hashes_.size() == kMost) limit = hashes_.back();
  }
  KeepSmallest();
}

void TextSketch::KeepSmallest() {
  std::sort(hashes_.begin(), hashes_.end());
  hashes_.erase(std::unique(hashes_.begin(), hashes_.end()), hashes_.end());
  if (hashes_.size() > kMost) hashes_.resize(kMost);
}

double TextSketch::Likeness(const TextSketch& other) const {
  std::size_t common = 0;
  std::size_t all = 0;
  auto a = hashes_.begin();
  auto b = other.hashes_.begin();
  for (; all < kMost && (a != hashes_.end() || b != other.hashes_.end()); ++all) {
    const bool takesA = b == other.hashes_.end() || (a != hashes_.end() && *a <= *b);
    const bool takesB = a == hashes_.end() || (b != other.hashes_.end() && *b <= *a);
    if (takesA && takesB) ++common;
    if (takesA) ++a;
    if (takesB) ++b;
  }
  return all == 0 ? 1 : static_cast<double>(common) / static_cast<double>(all);
}

}  // namespace quorvantis
