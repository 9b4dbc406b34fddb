// SPDX-License-Identifier: MIT
#include "likeness/TextSketch.h"

#include "regex/LetterCase.h"
#include "text/AsciiCase.h"
#include "text/LikelyTag.h"

#include <algorithm>
#include <array>

namespace quorvantis {
namespace {

/// What a unit is worth in a comparison: itself in lower case, or a blank for blanks and for punctuation,
/// which typing slips change; signs of formulas count.
constexpr char16_t ComparedAscii(char16_t unit) {
  constexpr std::u16string_view kPunctuation = u"!\"',.:;?`()[]{}_";
  return unit <= u' ' || kPunctuation.find(unit) != kPunctuation.npos ? u' ' : AsciiLower(unit);
}

constexpr std::size_t kAsciiUnits = 0x80;

constexpr std::size_t kLongestTag = 64;  // as in the keys that are stored

constexpr std::array<char16_t, kAsciiUnits> kComparedAscii = [] {
  std::array<char16_t, kAsciiUnits> compared{};
  for (std::size_t unit = 0; unit < kAsciiUnits; ++unit)
    compared[unit] = ComparedAscii(static_cast<char16_t>(unit));
  return compared;
}();

char16_t Compared(char16_t unit) {
  constexpr std::u16string_view kWide =
      u"\u00A0\u00AB\u00BB\u2018\u2019\u201C\u201D\u2026\u3000\u3001\u3002\uFF01\uFF08"
      u"\uFF09\uFF0C\uFF1A\uFF1B\uFF1F\u060C\u061B\u061F";
  if (unit < kAsciiUnits) return kComparedAscii[unit];
  return kWide.find(unit) == kWide.npos ? FoldCase(unit) : u' ';
}

/// A hash of a shingle that spreads well.
std::uint32_t HashOf(std::uint64_t shingle) {
  shingle = (shingle ^ (shingle >> 29)) * 0xD6E8FEB86659FD93;
  return static_cast<std::uint32_t>((shingle ^ (shingle >> 32)) * 0x9E3779B97F4A7C15 >> 32);
}

}  // namespace

std::u16string Normalised(std::u16string_view text) {
  std::u16string normalised(text.size(), u' ');
  std::size_t size = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const std::size_t tag = text[at] == u'<' ? LikelyTagLength(text.substr(at), kLongestTag) : 0;
    if (tag > 0) {
      at += tag - 1;
      continue;
    }
    const char16_t compared = Compared(text[at]);
    const bool isFurtherBlank = compared == u' ' && (size == 0 || normalised[size - 1] == u' ');
    if (!isFurtherBlank) normalised[size++] = compared;
  }
  normalised.resize(size);
  if (normalised.ends_with(u' ')) normalised.pop_back();
  return normalised;
}

TextSketch::TextSketch(std::u16string_view normalised) {
  if (normalised.empty()) return;
  // Hashes are spread evenly, so about twice as many as are kept are below this limit, unless the text
  // repeats itself.
  const std::size_t part = std::max<std::size_t>(normalised.size() / (2 * kMost), 1);
  const auto limit = static_cast<std::uint32_t>(UINT32_MAX / part);
  Collect(normalised, limit);
  KeepSmallest();
  if (hashes_.size() == kMost || limit == UINT32_MAX) return;
  hashes_.clear();
  Collect(normalised, UINT32_MAX);
  KeepSmallest();
}

void TextSketch::Collect(std::u16string_view normalised, std::uint32_t limit) {
  constexpr std::size_t kCollected = kMost * 4;  // sorted out at a time
  constexpr unsigned kUnitBits = 16;
  static_assert(kShingle * kUnitBits == 64, "a shingle is a number");
  std::uint64_t shingle = 0;
  const std::size_t size = std::min(kShingle, normalised.size());
  for (std::size_t at = 0; at < normalised.size(); ++at) {
    shingle = shingle << kUnitBits | normalised[at];
    if (at + 1 < size) continue;
    const std::uint32_t hash = HashOf(shingle);
    if (hash > limit) continue;
    hashes_.push_back(hash);
    if (hashes_.size() < kCollected) continue;
    KeepSmallest();
    if (hashes_.size() == kMost) limit = hashes_.back();
  }
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
