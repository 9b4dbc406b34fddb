// SPDX-License-Identifier: MIT
#include "bank/index/ShortWords.h"

#include "regex/WordBorders.h"
#include "text/Utf.h"

#include <algorithm>
#include <cstdint>

namespace quorvantis {
namespace {

// Tokens are a letter for the sense and the units in hexadecimal digits.
constexpr char kWholeWord = 'w';
constexpr char kWordBegin = 'b';
constexpr char kAnywhere = 'a';

void AppendToken(std::string& tokens, char sense, std::u16string_view units) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  if (!tokens.empty()) tokens.push_back(' ');
  tokens.push_back(sense);
  for (const char16_t unit : units) {
    for (int shift = 12; shift >= 0; shift -= 4) tokens.push_back(kDigits[(unit >> shift) & 15U]);
  }
}

/// The end of the character at `at`.
std::size_t NextCharacter(std::u16string_view text, std::size_t at) {
  const bool isPair = IsHighSurrogate(text[at]) && at + 1 < text.size() && IsLowSurrogate(text[at + 1]);
  return at + (isPair ? 2 : 1);
}

std::size_t EndOfWord(std::u16string_view text, std::size_t at) {
  while (at < text.size() && IsPartOfWord(text[at])) ++at;
  return at;
}

void AppendWord(std::string& tokens, std::u16string_view word) {
  AppendToken(tokens, kWordBegin, word.substr(0, 1));
  if (word.size() > 1) AppendToken(tokens, kWordBegin, word.substr(0, 2));
  if (word.size() < kTrigram) AppendToken(tokens, kWholeWord, word);
}

bool IsBlankOrNone(std::u16string_view text, std::size_t at) {
  return at >= text.size() || text[at] == u' ' || text[at] == u'\u0001';
}

bool IsMadeOfLetters(std::u16string_view word) {
  return std::all_of(word.begin(), word.end(), IsPartOfWord);
}

}  // namespace

std::size_t CharactersOf(std::u16string_view folded) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < folded.size(); at = NextCharacter(folded, at)) ++count;
  return count;
}

std::string ShortTokens(std::u16string_view folded) {
  std::string tokens;
  for (std::size_t at = 0; at < folded.size();) {
    const std::size_t wordEnd = EndOfWord(folded, at);
    if (wordEnd > at) {
      AppendWord(tokens, folded.substr(at, wordEnd - at));
      at = wordEnd - 1;  // its last letter may be the first of a pair
      if (!IsBlankOrNone(folded, wordEnd))
        AppendToken(tokens, kAnywhere, folded.substr(at, NextCharacter(folded, wordEnd) - at));
      at = wordEnd;
      continue;
    }
    const std::size_t next = NextCharacter(folded, at);
    if (!IsBlankOrNone(folded, at)) {
      AppendToken(tokens, kAnywhere, folded.substr(at, next - at));
      if (!IsBlankOrNone(folded, next))
        AppendToken(tokens, kAnywhere, folded.substr(at, NextCharacter(folded, next) - at));
    }
    at = next;
  }
  return tokens;
}

std::string ShortToken(std::u16string_view folded, bool isBegun) {
  std::string token;
  const char ofLetters = isBegun ? kWordBegin : kWholeWord;
  AppendToken(token, IsMadeOfLetters(folded) ? ofLetters : kAnywhere, folded);
  return token;
}

bool IsShortWordAt(std::u16string_view folded, std::size_t place, std::u16string_view word, bool isBegun) {
  if (!folded.substr(place).starts_with(word)) return false;
  if (!IsMadeOfLetters(word)) return true;
  const std::size_t end = place + word.size();
  const bool begins = place == 0 || !IsPartOfWord(folded[place - 1]);
  const bool ends = isBegun || end == folded.size() || !IsPartOfWord(folded[end]);
  return begins && ends;
}

}  // namespace quorvantis
