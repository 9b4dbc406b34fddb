// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// What a browser shows of a text with markup: the pieces between tags, with their character references
/// resolved, and without comments, scripts and styles. Pieces of blanks only are left out.
std::vector<std::u16string> VisiblePieces(std::u16string_view markup);

}  // namespace quorvantis
