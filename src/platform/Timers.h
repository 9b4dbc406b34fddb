// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

namespace quorvantis {

/// Calls something later on the user-interface thread.
class Timers {
 public:
  virtual ~Timers() = default;

  /// Runs `action` once after `delay`. The caller sees to it that what `action` uses is still there.
  virtual void After(std::chrono::milliseconds delay, std::function<void()> action) = 0;
};

}  // namespace quorvantis
