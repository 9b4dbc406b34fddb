// SPDX-License-Identifier: MIT
#pragma once

#include "import/keys/KeySection.h"

#include <optional>
#include <string_view>

namespace quorvantis {

/// A key without a heading that looks like questions whose numbers begin anew: each line repeats the right
/// option of the question with that number, "1. A) river". Nothing if a single line does anything else.
std::optional<KeySection> FindRepeatedKey(std::u16string_view text, const PaperOutline& outline);

}  // namespace quorvantis
