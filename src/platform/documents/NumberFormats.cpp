// SPDX-License-Identifier: MIT
#include "platform/documents/NumberFormats.h"

#include "text/NumberText.h"

#include <array>
#include <unordered_map>

namespace quorvantis {
namespace {

/// Repeats the last letters, as lists do: z, aa, bb.
std::u16string Letters(int number, char16_t first) {
  constexpr int kLetters = 26;
  constexpr int kMostRepeats = 30;
  const int repeats = (number - 1) / kLetters + 1;
  if (number < 1 || repeats > kMostRepeats) return {};
  return std::u16string(static_cast<std::size_t>(repeats),
                        static_cast<char16_t>(first + (number - 1) % kLetters));
}

std::u16string Roman(int number, bool upper) {
  struct Digit {
    int value;
    std::u16string_view lower;
    std::u16string_view upper;
  };
  static constexpr Digit kDigits[] = {
      {1000, u"m", u"M"}, {900, u"cm", u"CM"}, {500, u"d", u"D"},  {400, u"cd", u"CD"}, {100, u"c", u"C"},
      {90, u"xc", u"XC"}, {50, u"l", u"L"},    {40, u"xl", u"XL"}, {10, u"x", u"X"},    {9, u"ix", u"IX"},
      {5, u"v", u"V"},    {4, u"iv", u"IV"},   {1, u"i", u"I"}};
  std::u16string text;
  if (number < 1 || number > 3999) return text;
  for (const Digit& digit : kDigits) {
    for (; number >= digit.value; number -= digit.value) text += upper ? digit.upper : digit.lower;
  }
  return text;
}

/// One of several consecutive Unicode characters.
std::u16string Nth(int number, char16_t first, int count) {
  if (number < 1 || number > count) return {};
  return {static_cast<char16_t>(first + number - 1)};
}

std::u16string OneOf(int number, std::u16string_view characters) {
  if (number < 1 || number > static_cast<int>(characters.size())) return {};
  return {characters[static_cast<std::size_t>(number) - 1]};
}

/// Each decimal digit as another character.
std::u16string Digits(int number, std::u16string_view characters) {
  std::u16string text = number < 0 ? std::u16string() : FormatInteger(number);
  for (char16_t& unit : text) unit = characters[static_cast<std::size_t>(unit - u'0')];
  return text;
}

/// Chinese counting below 10000: digits with their powers of ten, one zero for a gap between them.
std::u16string Counting(int number, std::u16string_view digits, std::u16string_view powers, bool bareTen) {
  if (number < 1 || number > 9999) return {};
  std::u16string text;
  bool gap = false;
  int power = 1000;
  for (std::size_t i = 0; i < 4; ++i, power /= 10) {
    const int digit = number / power % 10;
    if (digit == 0) {
      gap = !text.empty();
      continue;
    }
    if (gap) text += digits[0];
    gap = false;
    const bool isBare = bareTen && power == 10 && digit == 1 && text.empty();
    if (!isBare) text += digits[static_cast<std::size_t>(digit)];
    if (i < powers.size()) text += powers[i];
  }
  return text;
}

std::u16string CircledNumber(int number) {
  return number == 0 ? std::u16string(u"\u24EA") : Nth(number, u'\u2460', 20);
}

std::u16string Padded(int number) {
  return (number >= 0 && number < 10 ? u"0" : u"") + FormatInteger(number);
}

constexpr std::u16string_view kChineseDigits = u"〇一二三四五六七八九";
constexpr std::u16string_view kChineseDigitsWithZero = u"零一二三四五六七八九";
constexpr std::u16string_view kPowers = u"千百十";

std::u16string ChineseNumber(int number) {
  return Counting(number, kChineseDigitsWithZero, kPowers, true);
}
std::u16string SimplifiedLegal(int number) {
  return Counting(number, u"零壹贰叁肆伍陆柒捌玖", u"仟佰拾", false);
}
std::u16string TraditionalLegal(int number) {
  return Counting(number, u"零壹貳參肆伍陸柒捌玖", u"仟佰拾", false);
}
std::u16string IdeographDigits(int number) {
  return Digits(number, kChineseDigits);
}

using Formatter = std::u16string (*)(int);

Formatter FormatterOf(std::string_view format) {
  static const std::unordered_map<std::string_view, Formatter> formatters{
      {"none", [](int) { return std::u16string(); }},
      {"upperLetter", [](int n) { return Letters(n, u'A'); }},
      {"lowerLetter", [](int n) { return Letters(n, u'a'); }},
      {"upperRoman", [](int n) { return Roman(n, true); }},
      {"lowerRoman", [](int n) { return Roman(n, false); }},
      {"decimalZero", Padded},
      {"decimalFullWidth", [](int n) { return Digits(n, u"０１２３４５６７８９"); }},
      {"decimalFullWidth2", [](int n) { return Digits(n, u"０１２３４５６７８９"); }},
      {"decimalEnclosedCircle", CircledNumber},
      {"decimalEnclosedCircleChinese", CircledNumber},
      {"decimalEnclosedParen", [](int n) { return Nth(n, u'\u2474', 20); }},
      {"decimalEnclosedFullstop", [](int n) { return Nth(n, u'\u2488', 20); }},
      {"chineseCounting", ChineseNumber},
      {"chineseCountingThousand", ChineseNumber},
      {"taiwaneseCounting", ChineseNumber},
      {"taiwaneseCountingThousand", ChineseNumber},
      {"japaneseCounting", ChineseNumber},
      {"chineseLegalSimplified", SimplifiedLegal},
      {"ideographLegalTraditional", TraditionalLegal},
      {"japaneseLegal", TraditionalLegal},
      {"ideographDigital", IdeographDigits},
      {"japaneseDigitalTenThousand", IdeographDigits},
      {"taiwaneseDigital", IdeographDigits},
      {"koreanDigital2", IdeographDigits},
      {"ideographEnclosedCircle", [](int n) { return Nth(n, u'\u3280', 10); }},
      {"arabicAlpha", [](int n) { return OneOf(n, u"أبتثجحخدذرزسشصضطظعغفقكلمنهوي"); }},
      {"arabicAbjad", [](int n) { return OneOf(n, u"أبجدهوزحطيكلمنسعفصقرشتثخذضظغ"); }},
      {"ideographTraditional", [](int n) { return OneOf(n, u"甲乙丙丁戊己庚辛壬癸"); }},
      {"ideographZodiac", [](int n) { return OneOf(n, u"子丑寅卯辰巳午未申酉戌亥"); }},
  };
  const auto found = formatters.find(format);
  return found == formatters.end() ? nullptr : found->second;
}

}  // namespace

std::u16string FormatListNumber(int number, std::string_view format) {
  if (const Formatter formatter = FormatterOf(format)) {
    std::u16string text = formatter(number);
    if (!text.empty() || format == "none") return text;
  }
  return FormatInteger(number);
}

}  // namespace quorvantis
