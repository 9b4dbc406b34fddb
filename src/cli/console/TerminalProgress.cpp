// SPDX-License-Identifier: MIT
#include "cli/console/TerminalProgress.h"

#include <ostream>

namespace quorvantis::cli {

TerminalProgress::~TerminalProgress() {
  if (shown_) stream_ << "\r\033[K" << std::flush;
}

void TerminalProgress::Report(std::uint64_t done, std::uint64_t total) {
  constexpr std::uint64_t kMegabyte = std::uint64_t{1024} * 1024;
  const std::string ofTotal = total > 0 ? " of " + std::to_string(total / kMegabyte) : "";
  Show(std::to_string(done / kMegabyte) + ofTotal + " MB");
}

void TerminalProgress::Wait() {
  Show("working...");
}

/// Returns to the beginning of the line, so that a message replaces it.
void TerminalProgress::Show(const std::string& line) {
  if (!enabled_ || Clock::now() < next_) return;
  shown_ = true;
  next_ = Clock::now() + std::chrono::milliseconds(100);
  stream_ << line << "\033[K\r" << std::flush;
}

}  // namespace quorvantis::cli
