// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>

namespace quorvantis {

/// As long as it exists, SIGINT (Ctrl+C) does not end the process but is noted: for work that can stop by
/// itself and says so. Where the signal was ignored, it stays so. Only one at a time.
class InterruptWatch {
 public:
  InterruptWatch();
  ~InterruptWatch();
  InterruptWatch(const InterruptWatch&) = delete;
  InterruptWatch& operator=(const InterruptWatch&) = delete;

  /// Whether the signal has come since this was made.
  bool HasCome() const;

 private:
  struct sigaction before_ {};
};

}  // namespace quorvantis
