// SPDX-License-Identifier: MIT
#include "regex/EscapeParser.h"

#include "regex/PosixClasses.h"

namespace quorvantis {
namespace {

CharacterSet Not(CharacterSet set) {
  set.Invert();
  return set;
}

std::optional<int> HexDigit(char16_t unit) {
  if (unit >= u'0' && unit <= u'9') return unit - u'0';
  if (unit >= u'A' && unit <= u'F') return unit - u'A' + 10;
  if (unit >= u'a' && unit <= u'f') return unit - u'a' + 10;
  return std::nullopt;
}

char16_t BracedCode(PatternCursor& cursor) {
  int code = 0;
  const std::size_t first = cursor.Position();
  for (; const std::optional<int> digit = HexDigit(cursor.Peek()); cursor.Next()) {
    code = code * 16 + *digit;
    if (code > 0xFFFF) cursor.Fail("the character code is larger than FFFF");
  }
  if (cursor.Position() == first || !cursor.Take(u"}")) cursor.Fail("\\x{ needs hexadecimal digits and }");
  return static_cast<char16_t>(code);
}

/// Up to two hexadecimal digits, none giving code 0, or a number in braces.
char16_t CharacterCode(PatternCursor& cursor) {
  if (cursor.Take(u"{")) return BracedCode(cursor);
  int code = 0;
  for (int i = 0; i < 2; ++i) {
    const std::optional<int> digit = HexDigit(cursor.Peek());
    if (!digit) break;
    code = code * 16 + *digit;
    cursor.Next();
  }
  return static_cast<char16_t>(code);
}

}  // namespace

std::optional<CharacterSet> ClassEscape(char16_t letter) {
  switch (letter) {
    case u'd':
      return DigitClass();
    case u'D':
      return Not(DigitClass());
    case u's':
      return SpaceClass();
    case u'S':
      return Not(SpaceClass());
    case u'w':
      return WordClass();
    case u'W':
      return Not(WordClass());
    default:
      return std::nullopt;
  }
}

char16_t UnitEscape(char16_t letter, PatternCursor& cursor) {
  switch (letter) {
    case u'a':
      return u'\a';
    case u'e':
      return u'\x1B';
    case u'f':
      return u'\f';
    case u'n':
      return u'\n';
    case u'r':
      return u'\r';
    case u't':
      return u'\t';
    case u'v':
      return u'\v';
    case u'x':
      return CharacterCode(cursor);
    default:
      return letter;
  }
}

}  // namespace quorvantis
