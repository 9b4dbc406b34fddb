// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvantis {

/// A set of UTF-16 units: one bit for each of the 65536, so a look-up costs the same for every class.
class CharacterSet {
 public:
  CharacterSet() : words_(kWords) {}

  /// Every unit.
  static CharacterSet All();
  /// The units of a text.
  static CharacterSet Of(std::u16string_view units);

  bool Contains(char16_t unit) const { return ((words_[unit / 64U] >> (unit % 64U)) & 1U) != 0; }

  void Add(char16_t unit) { words_[unit / 64U] |= std::uint64_t{1} << (unit % 64U); }
  void AddRange(char16_t first, char16_t last);
  void AddAll(const CharacterSet& other);
  void Remove(char16_t unit) { words_[unit / 64U] &= ~(std::uint64_t{1} << (unit % 64U)); }
  void Invert();

  /// Adds to every letter the letters that differ from it only in case.
  void CloseUnderCase();

  /// The number of units in the set.
  std::size_t Count() const;
  /// The smallest unit; the set must not be empty.
  char16_t First() const;

  /// First and last units of the ranges of the set, in ascending order; nothing if there are more than
  /// `most`.
  std::optional<std::vector<std::pair<char16_t, char16_t>>> Ranges(std::size_t most) const;

  /// Whether the sets have no unit in common.
  bool IsDisjoint(const CharacterSet& other) const;
  bool operator==(const CharacterSet&) const = default;

 private:
  static constexpr std::size_t kUnits = 65536;
  static constexpr std::size_t kWords = kUnits / 64;

  std::size_t Next(std::size_t from, bool isMember) const;

  std::vector<std::uint64_t> words_;
};

}  // namespace quorvantis
