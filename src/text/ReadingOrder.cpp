// SPDX-License-Identifier: MIT
#include "text/ReadingOrder.h"

#include <algorithm>
#include <vector>

namespace quorvantis {
namespace {

using Word = std::u16string_view;

bool HasRightToLeftLetter(Word word) {
  return std::ranges::any_of(word, [](char16_t unit) {
    return (unit >= 0x05D0 && unit <= 0x08FF && !(unit >= 0x0660 && unit <= 0x0669)) ||
           (unit >= 0xFB1D && unit <= 0xFDFF) || (unit >= 0xFE70 && unit <= 0xFEFC);
  });
}

bool HasLeftToRightLetter(Word word) {
  return std::ranges::any_of(word, [](char16_t unit) {
    return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z') ||
           (unit >= 0xC0 && unit < 0x0590) || (unit >= 0x0900 && unit < 0x2000) ||
           (unit >= 0x3040 && unit < 0xD800);
  });
}

std::vector<Word> WordsOf(std::u16string_view line) {
  std::vector<Word> words;
  for (std::size_t begin = 0; (begin = line.find_first_not_of(u' ', begin)) != line.npos;) {
    const std::size_t end = std::min(line.find(u' ', begin), line.size());
    words.push_back(line.substr(begin, end - begin));
    begin = end;
  }
  return words;
}

/// Reverses each run of words that begins and ends with one that `has` letters of the other direction, and
/// holds none of this one.
template <class Has, class Breaks>
void ReverseRuns(std::vector<Word>& words, Has has, Breaks breaks) {
  for (auto begin = words.begin(); (begin = std::find_if(begin, words.end(), has)) != words.end();) {
    auto end = begin + 1;
    for (auto next = end; next != words.end() && !breaks(*next); ++next) {
      if (has(*next)) end = next + 1;
    }
    std::reverse(begin, end);
    begin = end;
  }
}

}  // namespace

std::u16string InReadingOrder(std::u16string_view line) {
  std::vector<Word> words = WordsOf(line);
  const auto rightToLeft = std::ranges::count_if(words, HasRightToLeftLetter);
  if (rightToLeft == 0) return std::u16string(line);
  if (rightToLeft > std::ranges::count_if(words, HasLeftToRightLetter)) {
    std::ranges::reverse(words);
    ReverseRuns(words, HasLeftToRightLetter, HasRightToLeftLetter);
  } else {
    ReverseRuns(words, HasRightToLeftLetter, HasLeftToRightLetter);
  }
  std::u16string ordered;
  for (const Word word : words) ordered.append(ordered.empty() ? u"" : u" ").append(word);
  return ordered;
}

}  // namespace quorvantis
