// SPDX-License-Identifier: MIT
#include "import/labels/Numerals.h"

#include "text/NumberText.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// Digits that make numbers by their places.
struct DigitRow {
  NumeralKind kind;
  char16_t zero;
  std::u16string_view digit;  ///< a pattern
};

constexpr DigitRow kDigitRows[] = {
    {NumeralKind::Decimal, u'0', u"[0-9]"},
    {NumeralKind::FullWidth, u'\uFF10', u"[\uFF10-\uFF19]"},
    {NumeralKind::ArabicIndic, u'\u0660', u"[\u0660-\u0669]"},
    {NumeralKind::Persian, u'\u06F0', u"[\u06F0-\u06F9]"},
    {NumeralKind::Devanagari, u'\u0966', u"[\u0966-\u096F]"},
    {NumeralKind::Bengali, u'\u09E6', u"[\u09E6-\u09EF]"},
    {NumeralKind::Thai, u'\u0E50', u"[\u0E50-\u0E59]"},
};

/// Symbols that are numbers: a range of units and the value of its first one.
struct SymbolRow {
  NumeralKind kind;
  char16_t first;
  char16_t last;
  int value;
};

constexpr SymbolRow kSymbolRows[] = {
    {NumeralKind::Circled, u'\u2460', u'\u2473', 1},    {NumeralKind::Circled, u'\u3251', u'\u325F', 21},
    {NumeralKind::Circled, u'\u32B1', u'\u32BF', 36},   {NumeralKind::Circled, u'\u2776', u'\u277F', 1},
    {NumeralKind::InBrackets, u'\u2474', u'\u2487', 1}, {NumeralKind::WithDot, u'\u2488', u'\u249B', 1},
    {NumeralKind::UpperRoman, u'\u2160', u'\u216B', 1}, {NumeralKind::LowerRoman, u'\u2170', u'\u217B', 1},
    {NumeralKind::Chinese, u'\u3220', u'\u3229', 1},
};

constexpr std::u16string_view kChineseDigits = u"零一二三四五六七八九";

int RomanDigit(char16_t unit, bool isUpper) {
  constexpr std::u16string_view kUpper = u"IVXLC";
  constexpr std::u16string_view kLower = u"ivxlc";
  constexpr int kValues[] = {1, 5, 10, 50, 100};
  const std::size_t place = (isUpper ? kUpper : kLower).find(unit);
  return place == kUpper.npos ? 0 : kValues[place];
}

std::u16string RomanText(int value, bool isUpper) {
  struct Part {
    int value;
    std::u16string_view text;
  };
  constexpr Part kParts[] = {{100, u"C"}, {90, u"XC"}, {50, u"L"}, {40, u"XL"}, {10, u"X"},
                             {9, u"IX"},  {5, u"V"},   {4, u"IV"}, {1, u"I"}};
  std::u16string text;
  for (const Part& part : kParts) {
    for (; value >= part.value; value -= part.value) text += part.text;
  }
  if (!isUpper) std::ranges::transform(text, text.begin(), [](char16_t unit) { return unit | u' '; });
  return text;
}

/// Only numbers that are written as they should be: "IIX" is a word.
Numeral Roman(std::u16string_view text, bool isUpper) {
  constexpr int kLargestRoman = 49;
  std::size_t size = 0;
  int value = 0;
  for (int next = 0; size < text.size(); ++size) {
    const int digit = RomanDigit(text[size], isUpper);
    if (digit == 0) break;
    next = size + 1 < text.size() ? RomanDigit(text[size + 1], isUpper) : 0;
    value += digit < next ? -digit : digit;
    if (value > kLargestRoman) return {};
  }
  const NumeralKind kind = isUpper ? NumeralKind::UpperRoman : NumeralKind::LowerRoman;
  if (size == 0 || value <= 0 || RomanText(value, isUpper) != text.substr(0, size)) return {kind};
  return {kind, value, size};
}

/// "三", "十二", "二十", "一百零五".
Numeral Chinese(std::u16string_view text) {
  int value = 0;
  int digit = 0;
  std::size_t size = 0;
  for (; size < text.size(); ++size) {
    const std::size_t place = kChineseDigits.find(text[size]);
    if (place != kChineseDigits.npos) {
      digit = static_cast<int>(place);
    } else if (text[size] == u'十') {
      value += std::max(digit, 1) * 10;
      digit = 0;
    } else if (text[size] == u'百' && digit > 0 && value == 0) {
      value = digit * 100;
      digit = 0;
    } else {
      break;
    }
    if (value > kLargestNumeral) return {NumeralKind::Chinese};
  }
  return {NumeralKind::Chinese, value + digit, value + digit > 0 ? size : 0};
}

Numeral Digits(std::u16string_view text, const DigitRow& row, std::size_t mostDigits) {
  std::size_t size = 0;
  int value = 0;
  for (; size < text.size() && text[size] >= row.zero && text[size] < row.zero + 10; ++size) {
    if (size == mostDigits) return {row.kind};
    value = value * 10 + (text[size] - row.zero);
  }
  return {row.kind, value, value > 0 ? size : 0};
}

Numeral Symbol(char16_t unit, NumeralKind kind) {
  for (const SymbolRow& row : kSymbolRows) {
    if (row.kind == kind && unit >= row.first && unit <= row.last)
      return {kind, row.value + (unit - row.first), 1};
  }
  return {kind};
}

}  // namespace

Numeral NumeralAt(std::u16string_view text, std::size_t place, NumeralKind kind, std::size_t mostDigits) {
  if (place >= text.size()) return {kind};
  const std::u16string_view rest = text.substr(place);
  const auto* const digits = std::ranges::find(kDigitRows, kind, &DigitRow::kind);
  if (digits != std::end(kDigitRows)) return Digits(rest, *digits, mostDigits);
  if (const Numeral symbol = Symbol(rest[0], kind); symbol.size > 0) return symbol;
  if (kind == NumeralKind::Chinese) return Chinese(rest);
  if (kind == NumeralKind::UpperRoman || kind == NumeralKind::LowerRoman)
    return Roman(rest, kind == NumeralKind::UpperRoman);
  return {kind};
}

std::vector<Numeral> NumeralsAt(std::u16string_view text, std::size_t place, std::size_t mostDigits) {
  std::vector<Numeral> found;
  for (int kind = 0; kind <= static_cast<int>(NumeralKind::Chinese); ++kind) {
    const Numeral numeral = NumeralAt(text, place, static_cast<NumeralKind>(kind), mostDigits);
    if (numeral.size > 0) found.push_back(numeral);
  }
  return found;
}

SectionedNumeral SectionedNumeralAt(std::u16string_view text, std::size_t place) {
  SectionedNumeral found;
  Numeral numeral = NumeralAt(text, place, NumeralKind::Decimal, kLongNumberDigits);
  while (numeral.size > 0) {
    found.value = numeral.value;
    found.last = place;
    found.end = place + numeral.size;
    if (found.end >= text.size() || text[found.end] != u'.') break;
    place = found.end + 1;
    numeral = NumeralAt(text, place, NumeralKind::Decimal, kLongNumberDigits);
    found.sections += numeral.size > 0 ? 1 : 0;
  }
  return found;
}

int NumeralValue(std::u16string_view text) {
  for (const Numeral& numeral : NumeralsAt(text, 0)) {
    if (numeral.size == text.size()) return numeral.value;
  }
  return 0;
}

int NumberInLabel(std::u16string_view label) {
  for (std::size_t at = 0; at < label.size(); ++at) {
    const std::vector<Numeral> numerals = NumeralsAt(label, at, kLongNumberDigits);
    // A word in front, as in "Question 3", must not be read as a Roman numeral.
    for (const Numeral& numeral : numerals) {
      const bool isRoman = numeral.kind == NumeralKind::UpperRoman || numeral.kind == NumeralKind::LowerRoman;
      const std::size_t end = at + numeral.size;
      const auto isLetter = [](char16_t unit) {
        return ((unit | 0x20) >= u'a' && (unit | 0x20) <= u'z') || (unit >= 0xC0 && unit < 0x2000);
      };
      const bool isInWord =
          (at > 0 && isLetter(label[at - 1])) || (end < label.size() && isLetter(label[end]));
      if (numeral.kind == NumeralKind::Decimal) return SectionedNumeralAt(label, at).value;
      if (!isRoman || !isInWord) return numeral.value;
    }
  }
  return 0;
}

std::u16string NumeralPattern(NumeralKind kind, std::size_t mostDigits) {
  const auto* const digits = std::ranges::find(kDigitRows, kind, &DigitRow::kind);
  if (digits != std::end(kDigitRows))
    return std::u16string(digits->digit) + u"{1," + FormatInteger(static_cast<std::int64_t>(mostDigits)) +
           u"}";
  switch (kind) {
    case NumeralKind::Circled:
      return u"[\u2460-\u2473\u3251-\u325F\u32B1-\u32BF\u2776-\u277F]";
    case NumeralKind::InBrackets:
      return u"[\u2474-\u2487]";
    case NumeralKind::WithDot:
      return u"[\u2488-\u249B]";
    case NumeralKind::UpperRoman:
      return u"(?:[IVXLC]{1,8}|[\u2160-\u216B])";
    case NumeralKind::LowerRoman:
      return u"(?:[ivxlc]{1,8}|[\u2170-\u217B])";
    default:
      return u"(?:[零一二三四五六七八九十百]{1,6}|[\u3220-\u3229])";
  }
}

}  // namespace quorvantis
