// SPDX-License-Identifier: MIT
#pragma once

#include "import/keys/KeyReader.h"
#include "import/keys/KeySection.h"

#include <string_view>
#include <vector>

namespace quorvantis {

/// What of a key has come to no question although its other answers have: in the order of the text, and what
/// stands together as one piece.
std::vector<KeyLeftover> LeftoversOf(std::u16string_view text, const KeyList& key,
                                     const std::vector<MatchedEntry>& matched);

}  // namespace quorvantis
