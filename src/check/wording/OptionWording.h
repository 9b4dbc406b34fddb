// SPDX-License-Identifier: MIT
// What options say of other options: such options must keep their place, or stand last.
#pragma once

#include <string_view>

namespace quorvantis {

class WordedText;

/// "All of the above", "none of these", "both", "the first two", "以上都对", "كل ما سبق": an option about the
/// others, whichever they are. In the commonest languages of schools; others are not recognised.
bool SpeaksOfTheOthers(std::u16string_view option);

/// "Both A and B", "only (a) and (c)", "A、B", "أ و ب": an option that names others by their letters, A to E.
/// A letter alone is a text ("A" as a blood group), as is a letter within a formula or behind a noun
/// ("vitamin A and D").
bool NamesOptions(std::u16string_view option);

/// The same, also by numbers and the like: "1 and 3 only", "(i) and (ii)", "①②", "甲和乙". If the question
/// itself has these labels, it lists statements, and the option speaks of those.
bool NamesOptions(std::u16string_view option, std::u16string_view question);

/// "Which of the options A and B", "answer C", "选项A": the text of a question that names options by letters.
/// Letters without such a word are points, blood groups and notes.
bool NamesOptionsInText(std::u16string_view question);
bool NamesOptionsInText(const WordedText& question);

}  // namespace quorvantis
