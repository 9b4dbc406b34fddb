// SPDX-License-Identifier: MIT
#pragma once

#include "import/labels/Numerals.h"
#include "text/TextSpan.h"

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// A label with a number at the beginning of a line: "1.", "(2)", "Question 3:", "第4题", "1.5".
struct NumberLabel {
  TextSpan place;  ///< from the beginning of its prefix to the end of its close
  int value = 0;
  std::u16string prefix{};   ///< the words before the number, without blanks at their end
  char16_t open = 0;         ///< a bracket before the number, or 0
  std::u16string section{};  ///< what precedes the number in "2.3" and "1.2.3": "2.", "1.2."
  NumeralKind kind = NumeralKind::Decimal;
  std::u16string close{};   ///< what follows the number directly; may be empty after a prefix or bracket
  bool isSpaced = false;    ///< nothing but a blank follows the number
  bool isAfterKey = false;  ///< a letter in brackets, or a blank for it, stands before it: "(B) 1."
  bool hasTail = false;     ///< how many there are, or points, end its line: "Question 1 of 5 (2 points)"
};

/// Labels that are written alike, and what pattern finds them.
struct NumberFamily {
  std::u16string prefix{};  ///< as it is written; the pattern takes it in any letter case
  bool isBracketed = false;
  std::set<char16_t> opens{};
  std::ptrdiff_t sections = 0;  ///< how many numbers with dots precede each: 1 in "2.3"
  NumeralKind kind = NumeralKind::Decimal;
  std::set<std::u16string> closes{};
  bool isSpaced = false;
  std::size_t mostDigits = kUsualDigits;
  bool isAfterKeys = false;           ///< letters in brackets, or blanks for them, stand before some labels
  std::vector<NumberLabel> labels{};  ///< in the order of the text
  std::size_t tails = 0;              ///< how many labels have one
  double rising = 0;  ///< share of the labels whose number follows on the one before, or begins anew
  int restarts = 0;   ///< how often the numbers begin anew

  /// A pattern for "PreQuestion".
  std::u16string Pattern() const;

  /// "1.", "Question 12:", for telling users.
  std::u16string Example(std::u16string_view text) const;
};

/// All labels at beginnings of lines, grouped into families; those that look most like the numbers of
/// questions come first. Families of a single label are left out, unless the text has few lines or the number
/// is missing in the first family.
std::vector<NumberFamily> FindNumberFamilies(std::u16string_view text);

/// What can be read as a label at the beginning of the line, each way of reading it.
std::vector<NumberLabel> NumberLabelsAt(std::u16string_view text, TextSpan line);

}  // namespace quorvantis
