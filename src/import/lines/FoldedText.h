// SPDX-License-Identifier: MIT
// Texts of papers compared without regard to letter case and to the width of characters.
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// The small, narrow form of a unit, in the scripts that papers are written in. Blanks of all kinds become
/// one, and so do the forms of an Arabic alif. One unit always gives one.
char16_t Folded(char16_t unit);

std::u16string Folded(std::u16string_view text);

/// Folded, and without anything but letters and digits at its ends; blanks in a row are one.
std::u16string FoldedCore(std::u16string_view text);

/// A letter or digit of any script, or a mark on one.
bool IsLetterOrDigit(char16_t unit);

/// Whether a word may go on from one unit to the next: scripts without blanks between words go on among
/// themselves, but not from a Latin letter to a Chinese one.
bool AreInOneWord(char16_t unit, char16_t next);

}  // namespace quorvantis
