// SPDX-License-Identifier: MIT
#include "regex/UnitSearch.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace quorvantis {
namespace {

constexpr std::size_t kMostRanges = 6;             // with more, checking each unit is as fast
constexpr std::size_t kNear = 4;                   // units checked one by one first: often one of them is it
constexpr std::size_t kShort = 16;                 // units of a block in which the match is located
constexpr std::size_t kLong = UnitSearch::kBlock;  // units of a block that is skipped as a whole

// The loops over a block have a fixed length and no branch: compilers vectorise them.

bool IsInRange(char16_t unit, std::uint16_t first, std::uint16_t width) {
  return static_cast<std::uint16_t>(unit - first) <= width;
}

/// The index of the first byte that is not zero; the size for none.
std::size_t FirstSet(const std::array<std::uint8_t, kShort>& bytes) {
  for (std::size_t i = 0; i < kShort; i += sizeof(std::uint64_t)) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes.data() + i, sizeof word);
    if (word == 0) continue;
    const int zeros =
        std::endian::native == std::endian::little ? std::countr_zero(word) : std::countl_zero(word);
    return i + static_cast<std::size_t>(zeros) / 8;
  }
  return kShort;
}

/// Eight bytes that are 0 or 1 as eight bits, the lowest for the first.
std::uint64_t BitsOf(const std::uint8_t* bytes) {
  std::uint64_t word = 0;
  std::memcpy(&word, bytes, sizeof word);
  if constexpr (std::endian::native == std::endian::little) return (word * 0x0102040810204080U) >> 56U;
  return (word * 0x8040201008040201U) >> 56U;
}

}  // namespace

UnitSearch::UnitSearch(std::shared_ptr<const CharacterSet> units) : units_(std::move(units)) {
  const auto ranges = units_->Ranges(kMostRanges);
  isWide_ = ranges.has_value();
  if (!ranges) return;
  for (const auto& [first, last] : *ranges)
    ranges_.push_back({first, static_cast<std::uint16_t>(last - first)});
}

std::size_t UnitSearch::Find(std::u16string_view text, std::size_t from) const {
  const std::size_t size = text.size();
  if (isWide_ && ranges_.empty()) return std::max(from, size);
  std::size_t at = from;
  const auto fits = [&](std::size_t units) { return isWide_ && at + units <= size; };
  const std::size_t near = std::min(from + kNear, size);
  while (at < near && !units_->Contains(text[at])) ++at;
  if (at < near) return at;
  while (fits(kShort)) {
    for (std::size_t end = at + kLong; at < end && fits(kShort); at += kShort) {
      const std::size_t index = FirstInShort(text.data() + at);
      if (index < kShort) return at + index;
    }
    while (fits(kLong) && !HasOneInLong(text.data() + at)) at += kLong;
  }
  while (at < size && !units_->Contains(text[at])) ++at;
  return at;
}

std::size_t UnitSearch::FirstInShort(const char16_t* block) const {
  std::array<std::uint8_t, kShort> hits{};
  const Range only = ranges_.front();  // separate, because one is the usual number
  for (std::size_t i = 0; i < kShort; ++i)
    hits[i] = static_cast<std::uint8_t>(IsInRange(block[i], only.first, only.width));
  for (std::size_t r = 1; r < ranges_.size(); ++r) {
    const Range range = ranges_[r];
    for (std::size_t i = 0; i < kShort; ++i)
      hits[i] = static_cast<std::uint8_t>(
          hits[i] | static_cast<std::uint8_t>(IsInRange(block[i], range.first, range.width)));
  }
  return FirstSet(hits);
}

std::uint64_t UnitSearch::InBlock(const char16_t* block) const {
  if (isWide_ && !HasOneInLong(block)) return 0;
  std::array<std::uint8_t, kBlock> hits{};
  if (!isWide_) {
    for (std::size_t i = 0; i < kBlock; ++i) hits[i] = units_->Contains(block[i]) ? 1 : 0;
  }
  for (const Range range : ranges_) {
    for (std::size_t i = 0; i < kBlock; ++i)
      hits[i] = static_cast<std::uint8_t>(
          hits[i] | static_cast<std::uint8_t>(IsInRange(block[i], range.first, range.width)));
  }
  std::uint64_t bits = 0;
  for (std::size_t i = 0; i < kBlock; i += 8) bits |= BitsOf(hits.data() + i) << i;
  return bits;
}

bool UnitSearch::HasOneInLong(const char16_t* block) const {
  std::uint16_t any = 0;
  for (const Range range : ranges_) {
    for (std::size_t i = 0; i < kLong; ++i)
      any = static_cast<std::uint16_t>(any | (IsInRange(block[i], range.first, range.width) ? 1U : 0U));
  }
  return any != 0;
}

}  // namespace quorvantis
