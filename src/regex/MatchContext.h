// SPDX-License-Identifier: MIT
#pragma once

#include "regex/FailedStarts.h"

#include <functional>

namespace quorvantis {

/// What a caller passes from match to match, and how it can cancel a slow one.
struct MatchContext {
  /// Where the previous match ended, in UTF-16 units: the place of "\G". -1 before the first match, when that
  /// is where the scan begins. Match stores the end of its match here.
  int previousEnd = -1;

  /// Polled about every millisecond; true cancels the match. May be empty.
  std::function<bool()> isCancelled;

  /// Receives the failed starts, unless the pattern runs right-to-left. May be null.
  FailedStarts* failedStarts = nullptr;
};

}  // namespace quorvantis
