// SPDX-License-Identifier: MIT
#include "search/HitLine.h"

#include "text/ControlCharacters.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::size_t kBefore = 32;  // UTF-16 units
constexpr std::size_t kHit = 80;
constexpr std::size_t kAfter = 64;
constexpr char16_t kCut = u'\u2026';

bool BreaksLine(char16_t unit) {
  return IsControl(unit) || unit == 0x2028 || unit == 0x2029;
}

void AppendOnOneLine(std::u16string& line, std::u16string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text.substr(i, 2) == u"\r\n") continue;
    line.push_back(BreaksLine(text[i]) ? u' ' : text[i]);
  }
}

/// The first `most` units of a text, or one less where they would end within a surrogate pair.
std::u16string_view Beginning(std::u16string_view text, std::size_t most) {
  if (text.size() > most && most > 0 && IsHighSurrogate(text[most - 1])) --most;
  return text.substr(0, most);
}

std::u16string_view Ending(std::u16string_view text, std::size_t most) {
  if (text.size() <= most) return text;
  std::size_t begin = text.size() - most;
  if (begin < text.size() && IsLowSurrogate(text[begin])) ++begin;
  return text.substr(begin);
}

void AppendBeginning(std::u16string& line, std::u16string_view text, std::size_t most) {
  const std::u16string_view beginning = Beginning(text, most);
  AppendOnOneLine(line, beginning);
  if (beginning.size() < text.size()) line.push_back(kCut);
}

}  // namespace

HitLine LineWith(std::u16string_view text, std::size_t start, std::size_t length,
                 std::u16string_view replacement) {
  start = std::min(start, text.size());
  length = std::min(length, text.size() - start);
  HitLine line;
  const std::u16string_view before = Ending(text.substr(0, start), kBefore);
  if (before.size() < start) line.text.push_back(kCut);
  AppendOnOneLine(line.text, before);
  line.start = line.text.size();
  AppendBeginning(line.text, replacement, kHit);
  line.length = line.text.size() - line.start;
  AppendBeginning(line.text, text.substr(start + length), kAfter);
  return line;
}

HitLine LineAround(std::u16string_view text, std::size_t start, std::size_t length) {
  start = std::min(start, text.size());
  return LineWith(text, start, length, text.substr(start, length));
}

}  // namespace quorvantis
