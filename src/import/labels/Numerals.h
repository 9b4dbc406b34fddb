// SPDX-License-Identifier: MIT
// Numbers of questions, in the digits and numerals of many scripts.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// A way of writing numbers. Decimal covers the digits 0 to 9 alone.
enum class NumeralKind {
  Decimal,
  FullWidth,
  ArabicIndic,
  Persian,
  Devanagari,
  Bengali,
  Thai,
  Circled,
  InBrackets,  ///< ⑴
  WithDot,     ///< ⒈
  UpperRoman,
  LowerRoman,
  Chinese,
};

/// A number in a text.
struct Numeral {
  NumeralKind kind = NumeralKind::Decimal;
  int value = 0;         ///< 1 to kLargestNumeral
  std::size_t size = 0;  ///< in UTF-16 units
};

inline constexpr int kLargestNumeral = 99'999;

/// Numbers of questions have three digits at most, and longer ones are years or amounts. Only where nothing
/// else can be meant, as in a long list of questions, may they have more.
inline constexpr std::size_t kUsualDigits = 3;
inline constexpr std::size_t kLongNumberDigits = 5;

/// The numbers that begin at `place`, one of each kind at most, as long as they can be. One of more digits is
/// none.
std::vector<Numeral> NumeralsAt(std::u16string_view text, std::size_t place,
                                std::size_t mostDigits = kUsualDigits);

/// The same of one kind; size 0 if there is none.
Numeral NumeralAt(std::u16string_view text, std::size_t place, NumeralKind kind,
                  std::size_t mostDigits = kUsualDigits);

/// Numbers with dots between them, as in "2.3" and "1.2.3": the last counts, the others name the section.
struct SectionedNumeral {
  int sections = 0;      ///< how many numbers precede the last
  int value = 0;         ///< the last number; 0 if there is none
  std::size_t last = 0;  ///< where the last begins
  std::size_t end = 0;
};

/// Such numbers of digits at `place`; one alone has no sections.
SectionedNumeral SectionedNumeralAt(std::u16string_view text, std::size_t place);

/// The value of digits of any kind, the whole text; 0 if it is no number.
int NumeralValue(std::u16string_view text);

/// The number in a label, of any size: 3 of "第3题", of "Question 3" and of "2.3"; 0 if there is none.
int NumberInLabel(std::u16string_view label);

/// A pattern of import rules that finds such numbers.
std::u16string NumeralPattern(NumeralKind kind, std::size_t mostDigits = kUsualDigits);

}  // namespace quorvantis
