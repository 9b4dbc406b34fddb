// SPDX-License-Identifier: MIT
// The letters that options are labelled with, all over the world.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace quorvantis {

/// What options are labelled with, in its order. To teach the program a script, add a row to
/// OptionAlphabets.cpp.
struct OptionAlphabet {
  std::u16string_view name;
  std::u16string_view letters;   ///< one UTF-16 unit each, at least five; empty for an alphabet of words
  std::u16string_view others{};  ///< other forms of the same letters in the same order; a blank for none
  std::u16string_view words{};   ///< labels of several units in the same order, blanks between; "_" for none
  bool isSymbol = false;         ///< letters like ①, which need no bracket or dot
  bool standsAlone = false;      ///< blanks around the letter are enough, even within a line
  bool numbersStatements = false;  ///< often numbers what a question talks about, before its options
};

std::span<const OptionAlphabet> OptionAlphabets();

/// A letter of an alphabet, or a word of it.
struct AlphabetLetter {
  std::size_t alphabet = 0;  ///< in OptionAlphabets
  std::size_t index = 0;     ///< 0 for the first letter
};

/// What a unit can be as a label. Letters of one script may belong to several alphabets.
const std::vector<AlphabetLetter>& AlphabetLettersOf(char16_t unit);

/// A label of an alphabet in a text.
struct AlphabetLabel {
  AlphabetLetter letter;
  std::size_t size = 0;  ///< in UTF-16 units
};

/// The labels that may begin at `place`, letters and words; a word does not end within a longer one.
std::vector<AlphabetLabel> AlphabetLabelsAt(std::u16string_view text, std::size_t place);

/// All ways of writing label `index` of an alphabet.
std::vector<std::u16string_view> FormsOfLabel(const OptionAlphabet& alphabet, std::size_t index);

/// How many labels an alphabet has.
std::size_t SizeOf(const OptionAlphabet& alphabet);

/// The word for the label of that index that the text begins with; empty if there is none.
std::u16string_view LabelWordAt(const OptionAlphabet& alphabet, std::size_t index, std::u16string_view text);

/// Whether the two look alike, as a Latin "a" and a Cyrillic one do: people mix them up.
bool LookAlike(char16_t one, char16_t other);

/// The index of a letter in an alphabet, or of one that looks like it; the number of its letters for none.
std::size_t IndexInAlphabet(const OptionAlphabet& alphabet, char16_t unit);

}  // namespace quorvantis
