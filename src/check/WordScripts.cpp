// SPDX-License-Identifier: MIT
#include "check/WordScripts.h"

#include <array>
#include <cstddef>

namespace quorvantis {
namespace {

enum Script : std::size_t { kLatin, kGreek, kCyrillic, kScripts };

struct LetterRange {
  char16_t first;
  char16_t last;
  Script script;
};

// In ascending order.
constexpr LetterRange kLetters[] = {
    {u'A', u'Z', kLatin},     {u'a', u'z', kLatin},        {0x00C0, 0x00D6, kLatin},
    {0x00D8, 0x00F6, kLatin}, {0x00F8, 0x024F, kLatin},    {0x0386, 0x0386, kGreek},
    {0x0388, 0x03FF, kGreek}, {0x0400, 0x0481, kCyrillic}, {0x048A, 0x052F, kCyrillic},
    {0x1E00, 0x1EFF, kLatin}, {0x1F00, 0x1FFF, kGreek},
};

/// Letters that can be taken for one of another alphabet, by their own alphabet. What resembles a letter of
/// only one of the two others is in the row for that one.
struct LookAlikes {
  Script own;
  Script other;
  std::u16string_view letters;
};

constexpr LookAlikes kLookAlikes[] = {
    {kLatin, kCyrillic, u"ABCEHIJKMOPSTXYaceijopsxy"},
    {kCyrillic, kLatin, u"АВСЕНІЈКМОРЅТХУасеіјорѕху"},
    {kLatin, kGreek, u"ABEHIKMNOPTXYZou"},
    {kGreek, kLatin, u"ΑΒΕΗΙΚΜΝΟΡΤΧΥΖου"},
    {kGreek, kCyrillic, u"ΑΒΕΗΙΚΜΟΡΤΧΓΠΦΛο"},
    {kCyrillic, kGreek, u"АВЕНІКМОРТХГПФЛо"},
};

/// kScripts for what is no letter of the three.
Script ScriptOf(char16_t unit) {
  for (const LetterRange& range : kLetters) {
    if (unit < range.first) break;
    if (unit <= range.last) return range.script;
  }
  return kScripts;
}

bool IsCombiningMark(char16_t unit) {
  return unit >= 0x0300 && unit <= 0x036F;
}

bool LooksLike(char16_t unit, Script own, Script other) {
  for (const LookAlikes& row : kLookAlikes) {
    if (row.own == own && row.other == other) return row.letters.find(unit) != row.letters.npos;
  }
  return false;
}

/// Whether the letters of the rarer script in a word are all taken for letters of the other one.
bool IsMixed(std::u16string_view word, const std::array<std::size_t, kScripts>& counts) {
  constexpr std::size_t kShortest = 3;
  std::size_t letters = 0;
  std::size_t scripts = 0;
  Script most = kLatin;
  for (const Script script : {kLatin, kGreek, kCyrillic}) {
    letters += counts[script];
    if (counts[script] > 0) ++scripts;
    if (counts[script] > counts[most]) most = script;
  }
  if (scripts != 2 || letters < kShortest) return false;
  for (const char16_t unit : word) {
    const Script script = ScriptOf(unit);
    if (script != kScripts && script != most && !LooksLike(unit, script, most)) return false;
  }
  return true;
}

}  // namespace

std::optional<TextSpan> FindMixedWord(std::u16string_view text) {
  for (std::size_t begin = 0; begin < text.size(); ++begin) {
    std::array<std::size_t, kScripts> counts{};
    std::size_t end = begin;
    for (; end < text.size(); ++end) {
      const Script script = ScriptOf(text[end]);
      if (script != kScripts) ++counts[script];
      if (script == kScripts && !IsCombiningMark(text[end])) break;
    }
    if (IsMixed(text.substr(begin, end - begin), counts)) return TextSpan{begin, end};
    begin = end;
  }
  return std::nullopt;
}

}  // namespace quorvantis
