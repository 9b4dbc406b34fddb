// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Progress.h"

#include <chrono>
#include <iosfwd>
#include <string>

namespace quorvantis::cli {

/// A progress line that rewrites itself, for work that takes longer than half a second; silent if standard
/// error is not a terminal.
class TerminalProgress : public Progress {
 public:
  TerminalProgress(std::ostream& stream, bool isTerminal) : stream_(stream), enabled_(isTerminal) {}
  ~TerminalProgress() override;

  void Report(std::uint64_t done, std::uint64_t total) override;
  void Wait() override;

 private:
  using Clock = std::chrono::steady_clock;

  void Show(const std::string& line);

  std::ostream& stream_;
  bool enabled_;
  bool shown_ = false;
  Clock::time_point next_ = Clock::now() + std::chrono::milliseconds(500);
};

}  // namespace quorvantis::cli
