// SPDX-License-Identifier: MIT
// What a key at the end of a paper is made of: numbers of questions, and letters or marks as answers.
#pragma once

#include "import/labels/Numerals.h"
#include "text/TextSpan.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace quorvantis {

/// One answer of a key.
struct KeyEntry {
  int number = 0;  ///< of its question; 0 in a key without numbers
  TextSpan answer;
  bool isLetters = false;  ///< letters of options or a judgement; else a text
  std::size_t begin = 0;   ///< of its number, or of the answer where that stands elsewhere
  /// Of a range or row whose letters are too few or too many: how many questions it is for. Each of them gets
  /// such an entry, with all letters as the answer. 0 for all other entries.
  std::size_t asked = 0;

  bool IsMiscounted() const { return asked > 0; }
};

/// A number of a question with what belongs to it: "12.", "(12)", "Q12:", "第12题".
struct KeyNumber {
  int value = 0;
  TextSpan place;           ///< with prefix and what follows, blanks included
  bool isSetOff = false;    ///< by a dot, bracket or the like, not just by blanks
  bool isLettered = false;  ///< "B2": its part is named, too
};

/// The number that begins at `place`, if there is one. Roman numerals are titles of parts.
std::optional<KeyNumber> KeyNumberAt(std::u16string_view text, std::size_t place, std::size_t end,
                                     std::size_t mostDigits = kUsualDigits);

/// "1-5": questions that follow each other.
struct KeyRange {
  int first = 0;
  std::size_t count = 0;
  std::size_t end = 0;  ///< the place behind its last number
};

std::optional<KeyRange> KeyRangeAt(std::u16string_view text, std::size_t place, std::size_t end);

/// The answers of a range, which make up a span: "BCADB", "B C A D B". Nothing if they are anything else.
std::vector<KeyEntry> EntriesOfRange(std::u16string_view text, const KeyRange& range, TextSpan letters);

/// The size of the letters, the digit or the judgement that begins at `place`; 0 if there is none.
std::size_t KeyTokenSize(std::u16string_view text, std::size_t place, std::size_t end);

/// Whether two units can be letters of the same options.
bool ShareAlphabet(char16_t one, char16_t other);

/// How many letters of options a text has.
std::size_t KeyLetterCount(std::u16string_view letters);

/// The answers of a line that consists of nothing but numbers with answers, or of ranges: "1. B 2. C",
/// "1-5 ABCDA 6-10 BBDAC". A title may precede them. Nothing if there is anything else.
std::vector<KeyEntry> EntriesOfLine(std::u16string_view text, TextSpan line);

}  // namespace quorvantis
