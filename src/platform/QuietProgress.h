// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Progress.h"

#include <functional>
#include <utility>

namespace quorvantis {

/// Of work that nobody watches.
class QuietProgress : public Progress {
 public:
  /// `isCancelled`, which may be empty, is polled.
  explicit QuietProgress(std::function<bool()> isCancelled = {}) : isCancelled_(std::move(isCancelled)) {}

  void Report(std::uint64_t, std::uint64_t) override {}
  bool IsCancelled() override { return isCancelled_ && isCancelled_(); }

 private:
  std::function<bool()> isCancelled_;
};

}  // namespace quorvantis
