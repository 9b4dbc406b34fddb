// SPDX-License-Identifier: MIT
#include "text/ComparableText.h"

#include <algorithm>
#include <array>

namespace quorvantis {
namespace {

struct Expansion {
  char16_t ligature;
  std::u16string_view letters;
};

constexpr std::array<Expansion, 15> kLigatures{{{u'\uFB00', u"ff"},
                                                {u'\uFB01', u"fi"},
                                                {u'\uFB02', u"fl"},
                                                {u'\uFB03', u"ffi"},
                                                {u'\uFB04', u"ffl"},
                                                {u'\uFB05', u"st"},
                                                {u'\uFB06', u"st"},
                                                {u'\uFEF5', u"\u0644\u0622"},
                                                {u'\uFEF6', u"\u0644\u0622"},
                                                {u'\uFEF7', u"\u0644\u0623"},
                                                {u'\uFEF8', u"\u0644\u0623"},
                                                {u'\uFEF9', u"\u0644\u0625"},
                                                {u'\uFEFA', u"\u0644\u0625"},
                                                {u'\uFEFB', u"\u0644\u0627"},
                                                {u'\uFEFC', u"\u0644\u0627"}}};

constexpr std::u16string_view kLamAndAlef = u"\u0644\u0622\u0623\u0625\u0627";

/// The second of each pair stands behind the first.
constexpr std::u16string_view kBrackets = u"()[]{}<>\u00AB\u00BB\u2039\u203A";

bool IsLeftOut(char16_t unit) {
  return unit <= u' ' || (unit >= 0x7F && unit <= 0xA0) || unit == 0xAD || unit == 0x061C || unit == 0x1680 ||
         (unit >= 0x2000 && unit <= 0x200F) || (unit >= 0x2028 && unit <= 0x202F) ||
         (unit >= 0x205F && unit <= 0x206F) || unit == 0x3000 || unit == 0xFEFF;
}

char16_t WithoutMirror(char16_t unit) {
  const std::size_t at = kBrackets.find(unit);
  return at == kBrackets.npos ? unit : kBrackets[at - at % 2];
}

void SortRuns(std::u16string& text) {
  const auto isOfRun = [](char16_t unit) { return kLamAndAlef.find(unit) != kLamAndAlef.npos; };
  for (auto begin = text.begin(); (begin = std::find_if(begin, text.end(), isOfRun)) != text.end();) {
    const auto end = std::find_if_not(begin, text.end(), isOfRun);
    std::sort(begin, end);
    begin = end;
  }
}

}  // namespace

std::u16string ComparableText(std::u16string_view text) {
  std::u16string result;
  result.reserve(text.size());
  for (const char16_t unit : text) {
    if (IsLeftOut(unit)) continue;
    const auto* const ligature = std::ranges::find(kLigatures, unit, &Expansion::ligature);
    if (ligature == kLigatures.end()) {
      result.push_back(WithoutMirror(unit));
    } else {
      result += ligature->letters;
    }
  }
  SortRuns(result);
  return result;
}

}  // namespace quorvantis
