// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>
#include <utility>

namespace quorvantis {

/// A text that the program carries itself.
struct BuiltInText {
  std::pair<int, int> place;  ///< dialog and control; dialog 0 is the string table
  std::u16string_view text;
};

/// All of them, in the order of their places. The build makes this table: languages/english.ini, with the
/// texts of languages/built-in.ini in place of its own.
std::span<const BuiltInText> BuiltInTexts();

/// The text in that place, or an empty one.
std::u16string_view FindBuiltInText(int dialog, int number);

}  // namespace quorvantis
