// SPDX-License-Identifier: MIT
#pragma once

#include "text/TextSpan.h"

#include <optional>
#include <string_view>

namespace quorvantis {

/// The first word of three or more letters that is written in Latin, Greek or Cyrillic except for a few
/// letters of another of these, all of which look like letters of the word's own alphabet.
std::optional<TextSpan> FindMixedWord(std::u16string_view text);

}  // namespace quorvantis
