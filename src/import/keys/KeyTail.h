// SPDX-License-Identifier: MIT
#pragma once

#include "import/paper/PaperOutline.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace quorvantis {

/// What the lines of a key without heading may be.
enum class KeyTailLines {
  Keys,            ///< nothing but a key
  KeysAndAnswers,  ///< also what could be a question, but has the number of an earlier one and answers it
};

/// Where the last lines of a paper begin that are a key without heading; nothing if there are none. Good
/// wishes may follow them.
std::optional<std::size_t> BeginOfKeyTail(std::u16string_view text, const PaperOutline& outline,
                                          KeyTailLines lines);

}  // namespace quorvantis
