// SPDX-License-Identifier: MIT
#pragma once

#include "scoring/ScoreDistribution.h"

namespace quorvantis {

/// What became of an end that was typed.
enum class TypedEnd {
  NotEditable,  ///< the field cannot be typed into
  Same,         ///< it is the end already
  Reverted,     ///< refused; the field shows the old end again
  Ignored,      ///< not taken up, yet the field keeps what was typed
  Moved,        ///< the range ends there now
  Clamped,      ///< range 1 ends just before the end of range 2 now
};

/// Makes range `i` (0 to 8) end at question `end`, where the rules allow that, and cuts the range behind it
/// anew. `questionCount` is that of the exam. The rules for the first range and for the others differ, and
/// what the ranges further behind hold is not looked at: setups have always been cut this way.
TypedEnd MoveEnd(ScoreDistribution& ranges, std::size_t i, int end, int questionCount);

}  // namespace quorvantis
