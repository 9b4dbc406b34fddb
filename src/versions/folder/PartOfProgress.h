// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Progress.h"

#include <algorithm>
#include <cstdint>

namespace quorvantis {

/// The progress of one of several equal parts of a work.
class PartOfProgress : public Progress {
 public:
  /// `part` counts from 0 on. `whole` must outlive this.
  PartOfProgress(Progress& whole, std::uint64_t part, std::uint64_t parts)
      : whole_(whole), part_(part), parts_(parts) {}

  void Report(std::uint64_t done, std::uint64_t total) override {
    whole_.Report(part_ * total + std::min(done, total), parts_ * total);
  }
  void Wait() override { whole_.Wait(); }
  bool IsCancelled() override { return whole_.IsCancelled(); }

 private:
  Progress& whole_;
  std::uint64_t part_;
  std::uint64_t parts_;
};

}  // namespace quorvantis
