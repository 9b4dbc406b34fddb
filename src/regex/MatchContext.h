// SPDX-License-Identifier: MIT
#pragma once

#include "regex/FailedStarts.h"

#include <functional>

namespace quorvantis {

/// What a caller hands from match to match, and by which it can end one that takes too long.
struct MatchContext {
  /// Where the previous match ended, in UTF-16 units: the place of "\G". -1 before the first match, when that
  /// is where the scan begins. Match stores the end of its match here.
  int previousEnd = -1;

  /// Asked now and then, about every millisecond; true ends the match without an answer. May be empty.
  std::function<bool()> isCancelled;

  /// Told of the starts that fail, unless the pattern runs right-to-left. May be null.
  FailedStarts* failedStarts = nullptr;
};

}  // namespace quorvantis
