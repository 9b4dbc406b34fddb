// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Progress.h"

#include <atomic>
#include <functional>
#include <memory>
#include <utility>

namespace quorvantis {

/// The progress of work on another thread, which a window looks at from time to time.
class SharedProgress : public Progress {
 public:
  static constexpr int kWhole = 1000;

  /// `shown` becomes how much is done, 0 to kWhole.
  SharedProgress(std::shared_ptr<std::atomic_int> shown, std::function<bool()> isCancelled)
      : shown_(std::move(shown)), isCancelled_(std::move(isCancelled)) {}

  void Report(std::uint64_t done, std::uint64_t total) override {
    if (total > 0)
      *shown_ = static_cast<int>(static_cast<double>(done) / static_cast<double>(total) * kWhole);
  }
  bool IsCancelled() override { return isCancelled_(); }

 private:
  std::shared_ptr<std::atomic_int> shown_;
  std::function<bool()> isCancelled_;
};

}  // namespace quorvantis
