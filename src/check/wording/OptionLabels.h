// SPDX-License-Identifier: MIT
#pragma once

#include "check/wording/WordedText.h"

#include <string_view>

namespace quorvantis {

/// A letter of an option in lower case: of the Latin, Cyrillic and Arabic alphabets, Latin also full-width.
bool IsOptionLetter(char16_t unit);

/// Whether an option consists of labels other than letters, and of words around them: "1 and 3 only",
/// "(i) and (ii)", "①②", "甲和乙". Not if `question` has these labels itself.
bool NamesLabels(const WordedText& option, std::u16string_view question);

}  // namespace quorvantis
