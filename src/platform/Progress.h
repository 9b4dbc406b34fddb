// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace quorvantis {

/// Reports the progress of long work to a waiting user.
class Progress {
 public:
  virtual ~Progress() = default;

  /// `done` of about `total` bytes of the current file. Called often. An implementation may paint, but must
  /// not let the user start anything else.
  virtual void Report(std::uint64_t done, std::uint64_t total) = 0;

  /// Another program is working for an unknown time. Called several times a second; the same rules as for
  /// Report apply.
  virtual void Wait() {}

  /// Whether the user has cancelled. Work that can be cancelled polls this.
  virtual bool IsCancelled() { return false; }
};

}  // namespace quorvantis
