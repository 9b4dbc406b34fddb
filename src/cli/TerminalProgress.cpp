// SPDX-License-Identifier: MIT
#include "cli/TerminalProgress.h"

#include <ostream>

namespace quorvantis::cli {

TerminalProgress::~TerminalProgress() {
  if (shown_) stream_ << "\r\033[K" << std::flush;
}

void TerminalProgress::Report(std::uint64_t done, std::uint64_t total) {
  constexpr std::uint64_t kMegabyte = std::uint64_t{1024} * 1024;
  if (!enabled_ || Clock::now() < next_) return;
  shown_ = true;
  next_ = Clock::now() + std::chrono::milliseconds(100);
  stream_ << "\r" << done / kMegabyte;
  if (total > 0) stream_ << " of " << total / kMegabyte;
  stream_ << " MB\033[K" << std::flush;
}

}  // namespace quorvantis::cli
