// SPDX-License-Identifier: MIT
#pragma once

#include "scoring/ScoreDistribution.h"

namespace quorvantis {

/// The result of typing a range's end.
enum class TypedEnd {
  NotEditable,  ///< the field is read-only
  Same,         ///< it is already the end
  Reverted,     ///< refused; the field shows the old end again
  Ignored,      ///< not accepted, but the field keeps the text
  Moved,        ///< the range ends there now
  Clamped,      ///< range 1 ends just before the end of range 2 now
};

/// Makes range `i` (0 to 8) end at question `end`, if the rules allow it, and re-cuts the next range.
/// `questionCount` is that of the exam. The rules for the first range differ from those for the others, and
/// later ranges are not checked: setups have always been cut this way.
TypedEnd MoveEnd(ScoreDistribution& ranges, std::size_t i, int end, int questionCount);

}  // namespace quorvantis
