// SPDX-License-Identifier: MIT
#pragma once

#include "regex/LetterCase.h"
#include "regex/PatternCursor.h"

namespace quorvantis {

/// The state of "\Q…\E" in a pattern, and of "\L" and "\U" inside, which make the quoted letters lower or
/// upper case up to the next of them.
class QuotedText {
 public:
  bool IsOn() const { return on_; }

  /// Takes a mark that begins or ends a quotation or changes the case in it, if one comes next.
  bool TakeMark(PatternCursor& cursor) {
    if (!on_) {
      on_ = cursor.Take(u"\\Q");
      case_ = Case::AsWritten;
      return on_;
    }
    if (cursor.Take(u"\\E")) {
      on_ = false;
    } else if (cursor.Take(u"\\L")) {
      case_ = Case::Lower;
    } else if (cursor.Take(u"\\U")) {
      case_ = Case::Upper;
    } else {
      return false;
    }
    return true;
  }

  /// Takes the next quoted unit; there must be one.
  char16_t Next(PatternCursor& cursor) const {
    const char16_t unit = cursor.Next();
    if (case_ == Case::Lower) return ToLowerCase(unit);
    return case_ == Case::Upper ? ToUpperCase(unit) : unit;
  }

 private:
  enum class Case { AsWritten, Lower, Upper };
  bool on_ = false;
  Case case_ = Case::AsWritten;
};

}  // namespace quorvantis
