// SPDX-License-Identifier: MIT
// Words of one or two characters. Trigrams do not find them, and in scripts that put blanks between words
// they are wanted as words ("pH", not "alphabet"), so they have an index of their own.
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// Characters from which on trigrams find a word.
constexpr std::size_t kTrigram = 3;

/// How many characters (code points) a folded text has.
std::size_t CharactersOf(std::u16string_view folded);

/// The tokens by which a folded text is found, with blanks between them, in ASCII.
std::string ShortTokens(std::u16string_view folded);

/// The token that every text with this folded word of one or two characters has. Letters and digits: as a
/// whole word or, with `isBegun`, as the beginning of one. Anything else, such as Chinese: anywhere.
std::string ShortToken(std::u16string_view folded, bool isBegun);

/// Whether a folded text has `word`, one or two characters long, at `place` in that sense.
bool IsShortWordAt(std::u16string_view folded, std::size_t place, std::u16string_view word, bool isBegun);

}  // namespace quorvantis
