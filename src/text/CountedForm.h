// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace quorvantis {

/// The form of a counted text that fits a number. `forms` are the forms of one text with bars between them:
/// "1:%1 question|%1 questions". A form begins with the numbers it is for and a colon: single numbers, ranges
/// ("3-10"), several of them ("0,5-7"). After a star only the last digits count, as many as are written there
/// ("*2-4", "*11-14"). A form without numbers fits all. The first form that fits is taken, or the last one if
/// none does or `number` is not a number. So each text brings the plural rules of its language, and the code
/// needs no table of languages.
std::u16string_view CountedForm(std::u16string_view forms, std::u16string_view number);

}  // namespace quorvantis
