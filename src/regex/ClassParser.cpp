// SPDX-License-Identifier: MIT
#include "regex/ClassParser.h"

#include "regex/EscapeParser.h"
#include "regex/PosixClasses.h"
#include "regex/QuotedText.h"

#include <optional>

namespace quorvantis {
namespace {

class ClassParser {
 public:
  explicit ClassParser(PatternCursor& cursor) : cursor_(cursor), start_(cursor.Position()) {}

  CharacterSet Parse(bool ignoreCase) {
    const bool negated = cursor_.Take(u"^");
    if (cursor_.LooksAt(u"]")) AddRangeFrom(cursor_.Next());
    while (!AtClosingBracket()) ParseItem();
    if (ignoreCase) set_.CloseUnderCase();
    if (negated) set_.Invert();
    return std::move(set_);
  }

 private:
  bool AtClosingBracket() {
    while (quoted_.TakeMark(cursor_)) {
    }
    if (cursor_.AtEnd()) PatternCursor::FailAt(start_, "the class is not closed by ]");
    return !quoted_.IsOn() && cursor_.Take(u"]");
  }

  void ParseItem() {
    if (quoted_.IsOn()) {
      AddRangeFrom(quoted_.Next(cursor_));
    } else if (!TakeNamedClass()) {
      if (const std::optional<char16_t> unit = TakeUnit()) AddRangeFrom(*unit);
    }
  }

  /// "[:name:]" or "[:^name:]"; anything else after "[" is units.
  bool TakeNamedClass() {
    const std::size_t place = cursor_.Position();
    if (!cursor_.Take(u"[:")) return false;
    const bool negated = cursor_.Take(u"^");
    const std::size_t first = cursor_.Position();
    while (cursor_.Peek() >= u'a' && cursor_.Peek() <= u'z') cursor_.Next();
    const std::u16string_view name = cursor_.TextSince(first);
    if (!cursor_.Take(u":]")) {
      cursor_.MoveTo(place);
      return false;
    }
    CharacterSet named = PosixClass(name);
    if (negated && named.Count() != 0) named.Invert();  // an unknown name matches nothing, negated or not
    set_.AddAll(named);
    return true;
  }

  /// One unit, or nothing after adding the class that an escape stands for.
  std::optional<char16_t> TakeUnit() {
    const char16_t unit = cursor_.Next();
    if (unit != u'\\') return unit;
    if (cursor_.AtEnd()) cursor_.Fail("a backslash at the end");
    const char16_t letter = cursor_.Next();
    if (letter == u'b') return u'\b';
    const std::optional<CharacterSet> escaped = ClassEscape(letter);
    if (!escaped) return UnitEscape(letter, cursor_);
    set_.AddAll(*escaped);
    return std::nullopt;
  }

  /// Adds `first`, or the range that begins with it.
  void AddRangeFrom(char16_t first) {
    const std::size_t place = cursor_.Position();
    set_.Add(first);
    if (quoted_.IsOn() || !cursor_.Take(u"-") || cursor_.LooksAt(u"]") || cursor_.LooksAt(u"[:") ||
        cursor_.AtEnd()) {
      cursor_.MoveTo(place);
      return;
    }
    const std::optional<char16_t> last = TakeUnit();
    if (!last) {
      set_.Add(u'-');  // "[a-\d]": there is no range to a class
    } else if (*last < first) {
      PatternCursor::FailAt(place, "the range of the class ends before it begins");
    } else {
      set_.AddRange(first, *last);
    }
  }

  PatternCursor& cursor_;
  std::size_t start_;
  QuotedText quoted_;
  CharacterSet set_;
};

}  // namespace

CharacterSet ParseClass(PatternCursor& cursor, bool ignoreCase) {
  return ClassParser(cursor).Parse(ignoreCase);
}

}  // namespace quorvantis
