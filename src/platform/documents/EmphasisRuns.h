// SPDX-License-Identifier: MIT
// Keeps the emphasis of a text (WordText::emphasis) right while the text grows. Positions are in UTF-16
// units.
#pragma once

#include "platform/WordContent.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quorvantis {

/// The units from `begin` to before `end`, which have just been appended, stand out in these ways; 0 for not.
void AppendEmphasis(std::vector<EmphasisRun>& runs, std::size_t begin, std::size_t end, std::uint8_t kinds);

/// `size` units that stand out in these ways have been inserted at `place`, where no run may go on. Takes
/// time for the runs after the place alone.
void InsertEmphasis(std::vector<EmphasisRun>& runs, std::size_t place, std::size_t size, std::uint8_t kinds);

}  // namespace quorvantis
