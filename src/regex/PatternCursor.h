// SPDX-License-Identifier: MIT
#pragma once

#include "regex/RegexError.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace quorvantis {

/// A place in a pattern that is being read.
class PatternCursor {
 public:
  explicit PatternCursor(std::u16string_view pattern) : pattern_(pattern) {}

  std::size_t Position() const { return position_; }
  bool AtEnd() const { return position_ >= pattern_.size(); }
  /// The next unit; U+0000 at the end.
  char16_t Peek() const { return AtEnd() ? u'\0' : pattern_[position_]; }
  /// Takes the next unit; there must be one.
  char16_t Next() { return pattern_[position_++]; }
  void MoveTo(std::size_t position) { position_ = position; }

  bool LooksAt(std::u16string_view text) const { return pattern_.substr(position_).starts_with(text); }
  /// Takes `text` if it comes next.
  bool Take(std::u16string_view text) {
    if (!LooksAt(text)) return false;
    position_ += text.size();
    return true;
  }

  /// What was taken since the cursor was at `position`.
  std::u16string_view TextSince(std::size_t position) const {
    return pattern_.substr(position, position_ - position);
  }

  /// Takes the text before `end`, and `end`; nothing if there is no `end`.
  std::optional<std::u16string_view> TakeUntil(std::u16string_view end) {
    const std::size_t found = pattern_.find(end, position_);
    if (found == std::u16string_view::npos) return std::nullopt;
    const std::u16string_view text = pattern_.substr(position_, found - position_);
    position_ = found + end.size();
    return text;
  }

  /// Takes a decimal number; nothing if there is no digit. Fails above `limit`.
  std::optional<int> TakeNumber(int limit) {
    const auto atDigit = [this] { return Peek() >= u'0' && Peek() <= u'9'; };
    if (!atDigit()) return std::nullopt;
    int number = 0;
    while (atDigit()) {
      number = number * 10 + (Next() - u'0');
      if (number > limit) Fail("the number is too large");
    }
    return number;
  }

  [[noreturn]] void Fail(const char* reason) const { FailAt(position_, reason); }
  [[noreturn]] static void FailAt(std::size_t position, const char* reason) {
    throw RegexError{position, reason};
  }

 private:
  std::u16string_view pattern_;
  std::size_t position_ = 0;
};

}  // namespace quorvantis
