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

bool CharacterSet::IsDisjoint(const CharacterSet& other) const {
  return std::ranges::equal(words_, other.words_,
                            [](std::uint64_t a, std::uint64_t b) { return (a & b) == 0; });
}

}  // namespace quorvantis
