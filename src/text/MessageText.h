// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace quorvantis {

/// Fills the placeholders of `format`: "%1" to "%9" show the value of that number, in any order and as often
/// as the language needs; each "%s" or "%d" of older texts shows the next value. A group of forms in braces,
/// "{%1|1:%1 question|%1 questions}", shows the form that fits the number in its first placeholder
/// (text/CountedForm.h). A placeholder without a value stays as it is, and a value without a placeholder is
/// not shown, so no translation can break a message.
std::u16string FillMessage(std::u16string_view format, std::initializer_list<std::u16string_view> values);

}  // namespace quorvantis
