// SPDX-License-Identifier: MIT
// How steps give a question its answer.
#pragma once

#include "import/paper/PaperOutline.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// Whether nothing is known of a question's answer: it has none, or only a place where one is to be written.
bool IsUnanswered(std::u16string_view text, const OutlinedQuestion& question);

/// Whether a span holds nothing but blanks, line ends, and what is printed for pupils to write on.
bool IsBlankToFill(std::u16string_view text, TextSpan span);

/// "BD" for the options 1 and 3.
std::u16string CapitalLetters(const std::vector<std::size_t>& options);

/// Letters in the place of a written answer, as far as it goes, so that the paper shows where they come from.
PaperText LettersInPlace(const PaperText& text, TextSpan answer, std::u16string_view letters);

/// The edit that gives an unanswered question an answer: behind its own label if it has one, else on a line
/// of its own at the question's end. `end` is where the question ends at the latest.
PaperEdit AnswerEdit(const PaperText& text, const OutlinedQuestion& question, std::size_t end,
                     const PaperText& answer);

/// The line end that the text uses.
std::u16string_view LineEndIn(std::u16string_view text);

/// The index of the option that a unit names by its letter, in any case and width; the number of options if
/// it names none. `latinLetters`: Latin letters name Cyrillic options by their place in the Latin alphabet
/// rather than by their looks.
std::size_t OptionNamed(const OptionSequence& options, char16_t unit, bool latinLetters = false);

/// The first line of an option's text: headings that follow the last option are no part of it.
TextSpan FirstLineOf(std::u16string_view text, TextSpan span);

}  // namespace quorvantis
