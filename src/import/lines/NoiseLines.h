// SPDX-License-Identifier: MIT
// Lines of a paper that say nothing of the exam, as far as one line shows it.
#pragma once

#include <string_view>

namespace quorvantis {

/// "Page 2 of 5", "第2页 共4页": a number and words for pages alone.
bool IsPageLine(std::u16string_view line);

/// Whether a line has a word for pages, whatever else it has.
bool NamesPage(std::u16string_view line);

/// "QuestionID 17", "Item ID: A-17", "Difficulty: easy".
bool IsTagLine(std::u16string_view line);

/// "(Source: …)", "来源：…".
bool IsSourceLine(std::u16string_view line);

/// "----", "====", "* * *". Dots and underscores are to be written on.
bool IsSeparatorLine(std::u16string_view line);

}  // namespace quorvantis
