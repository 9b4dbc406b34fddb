// SPDX-License-Identifier: MIT
#include "regex/CharacterSet.h"

#include "regex/LetterCase.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <numeric>

namespace quorvantis {

CharacterSet CharacterSet::All() {
  CharacterSet set;
  set.Invert();
  return set;
}

CharacterSet CharacterSet::Of(std::u16string_view units) {
  CharacterSet set;
  for (const char16_t unit : units) set.Add(unit);
  return set;
}

void CharacterSet::AddRange(char16_t first, char16_t last) {
  for (std::uint32_t unit = first; unit <= last; ++unit) Add(static_cast<char16_t>(unit));
}

void CharacterSet::AddAll(const CharacterSet& other) {
  std::ranges::transform(words_, other.words_, words_.begin(), std::bit_or{});
}

void CharacterSet::Invert() {
  std::ranges::transform(words_, words_.begin(), std::bit_not{});
}

void CharacterSet::CloseUnderCase() {
  const CharacterSet given = *this;
  for (const auto& [a, b] : CasePairs()) {
    if (given.Contains(a)) Add(b);
    if (given.Contains(b)) Add(a);
  }
}

std::size_t CharacterSet::Count() const {
  return std::accumulate(words_.begin(), words_.end(), std::size_t{0},
                         [](std::size_t sum, std::uint64_t word) {
                           return sum + static_cast<std::size_t>(std::popcount(word));
                         });
}

char16_t CharacterSet::First() const {
  const auto word = std::ranges::find_if(words_, [](std::uint64_t bits) { return bits != 0; });
  return static_cast<char16_t>((word - words_.begin()) * 64 + std::countr_zero(*word));
}

std::optional<std::vector<std::pair<char16_t, char16_t>>> CharacterSet::Ranges(std::size_t most) const {
  std::vector<std::pair<char16_t, char16_t>> ranges;
  for (std::size_t first = Next(0, true); first < kUnits;) {
    if (ranges.size() == most) return std::nullopt;
    const std::size_t end = Next(first, false);
    ranges.emplace_back(static_cast<char16_t>(first), static_cast<char16_t>(end - 1));
    first = Next(end, true);
  }
  return ranges;
}

/// The first unit from `from` on that is in the set, or is not; kUnits if there is none.
std::size_t CharacterSet::Next(std::size_t from, bool isMember) const {
  while (from < kUnits) {
    const std::uint64_t word = words_[from / 64];
    const std::uint64_t wanted = (isMember ? word : ~word) >> (from % 64);
    if (wanted != 0) return from + static_cast<std::size_t>(std::countr_zero(wanted));
    from = (from / 64 + 1) * 64;
  }
  return kUnits;
}

bool CharacterSet::IsDisjoint(const CharacterSet& other) const {
  return std::ranges::equal(words_, other.words_,
                            [](std::uint64_t a, std::uint64_t b) { return (a & b) == 0; });
}

}  // namespace quorvantis
