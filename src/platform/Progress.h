// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace quorvantis {

/// Told how far long work has come, so that a person who waits can see it.
class Progress {
 public:
  virtual ~Progress() = default;

  /// `done` of about `total` bytes of the file in hand. Called often. An implementation may paint, but must
  /// not let the user start anything else.
  virtual void Report(std::uint64_t done, std::uint64_t total) = 0;

  /// Another program works, and nobody knows for how long. Called several times a second; what holds for the
  /// implementation of Report holds here.
  virtual void Wait() {}

  /// Whether the user wants the work to end without a result. Asked by work that can be ended, now and then.
  virtual bool IsCancelled() { return false; }
};

}  // namespace quorvantis
