// SPDX-License-Identifier: MIT
// The letters that options are labelled with, all over the world.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace quorvantis {

/// Letters that label options, in their order. To teach the program a script, add a row to
/// OptionAlphabets.cpp.
struct OptionAlphabet {
  std::u16string_view name;
  std::u16string_view letters;        ///< one UTF-16 unit each, at least five
  std::u16string_view others{};       ///< other forms of the same letters in the same order; a blank for none
  bool isSymbol = false;              ///< letters like ①, which need no bracket or dot
  bool standsAlone = false;           ///< blanks around the letter are enough, even within a line
  std::u16string_view firstAsWord{};  ///< the name of the first letter where it is written out, as "الف" is
};

std::span<const OptionAlphabet> OptionAlphabets();

/// A letter of an alphabet.
struct AlphabetLetter {
  std::size_t alphabet = 0;  ///< in OptionAlphabets
  std::size_t index = 0;     ///< 0 for the first letter
};

/// What a unit can be as a label. Letters of one script may belong to several alphabets.
const std::vector<AlphabetLetter>& AlphabetLettersOf(char16_t unit);

/// Whether the two look alike, as a Latin "a" and a Cyrillic one do: people mix them up.
bool LookAlike(char16_t one, char16_t other);

/// The index of a letter in an alphabet, or of one that looks like it; the alphabet's size for none.
std::size_t IndexInAlphabet(const OptionAlphabet& alphabet, char16_t unit);

}  // namespace quorvantis
