// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace quorvantis {

/// The form of a counted text that fits a number. `forms` are the forms of one text with bars between them:
/// "1:%s question|%s questions". A form begins with the numbers that it is for and a colon: single ones,
/// ranges ("3-10"), several ("0,5-7"); behind a star only the last digits of the number count, as many as are
/// written there ("*2-4", "*11-14"). A form without numbers is for all. The first form that fits is taken,
/// the last one when none does or when `number` is no number. So texts tell themselves how their language
/// counts, and no table of languages is needed.
std::u16string_view CountedForm(std::u16string_view forms, std::u16string_view number);

}  // namespace quorvantis
