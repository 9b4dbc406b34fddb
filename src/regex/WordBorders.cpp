// SPDX-License-Identifier: MIT
#include "regex/WordBorders.h"

#include "regex/CharacterSet.h"

namespace quorvantis {
namespace {

struct UnitRange {
  char16_t first;
  char16_t last;
};

/// What is not a part of a word: punctuation, symbols and blanks, and the characters of scripts without
/// borders. In ascending order. Surrogates are in it: most characters beyond the first 65536 are pictures and
/// Chinese characters.
// clang-format off
constexpr UnitRange kOutsideWords[] = {
    {0x0000, 0x002F}, {0x003A, 0x0040}, {0x005B, 0x005E}, {0x0060, 0x0060}, {0x007B, 0x00A9}, {0x00AB, 0x00B1},
    {0x00B4, 0x00B4}, {0x00B6, 0x00B8}, {0x00BB, 0x00BF}, {0x00D7, 0x00D7}, {0x00F7, 0x00F7}, {0x02C2, 0x02C5},
    {0x02D2, 0x02DF}, {0x037E, 0x037E}, {0x0387, 0x0387}, {0x055A, 0x055F}, {0x0589, 0x058A}, {0x05BE, 0x05BE},
    {0x05C0, 0x05C0}, {0x05C3, 0x05C3}, {0x05C6, 0x05C6}, {0x05F3, 0x05F4}, {0x0606, 0x060F}, {0x061B, 0x061F},
    {0x066A, 0x066D}, {0x06D4, 0x06D4}, {0x0964, 0x0965}, {0x0E00, 0x0EFF}, {0x1000, 0x109F}, {0x10FB, 0x10FB},
    {0x1680, 0x1680}, {0x1780, 0x17FF}, {0x2000, 0x200B}, {0x200E, 0x203E}, {0x2041, 0x2053}, {0x2055, 0x206F},
    {0x207A, 0x207E}, {0x208A, 0x208E}, {0x20A0, 0x20CF}, {0x2116, 0x2118}, {0x2190, 0x2BFF}, {0x2E00, 0xA4CF},
    {0xA960, 0xA97F}, {0xD800, 0xF8FF}, {0xF900, 0xFAFF}, {0xFB29, 0xFB29}, {0xFD3E, 0xFD3F},
    {0xFE10, 0xFE1F}, {0xFE30, 0xFE6F}, {0xFEFF, 0xFF0F}, {0xFF1A, 0xFF20}, {0xFF3B, 0xFF3E}, {0xFF40, 0xFF40},
    {0xFF5B, 0xFF9F}, {0xFFE0, 0xFFFF},
};
// clang-format on

CharacterSet PartsOfWords() {
  CharacterSet units;
  for (const UnitRange& range : kOutsideWords) units.AddRange(range.first, range.last);
  units.Invert();
  return units;
}

bool IsBorder(std::u16string_view text, std::size_t place) {
  if (place == 0 || place >= text.size()) return true;
  return !IsPartOfWord(text[place - 1]) || !IsPartOfWord(text[place]);
}

}  // namespace

bool IsPartOfWord(char16_t unit) {
  static const CharacterSet kParts = PartsOfWords();
  return kParts.Contains(unit);
}

bool IsWholeWord(std::u16string_view text, std::size_t start, std::size_t end) {
  return IsBorder(text, start) && IsBorder(text, end);
}

}  // namespace quorvantis
