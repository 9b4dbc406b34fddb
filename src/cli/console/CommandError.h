// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <stdexcept>
#include <string>

namespace quorvantis::cli {

inline constexpr int kCommandFailed = 1;
/// As shells tell of Ctrl+C: 128 and the number of the signal.
inline constexpr int kCommandInterrupted = 130;

/// Ends a command, with exit status 1 unless another one is given. The text is one line: the file, what is
/// wrong, what to do.
class CommandError : public std::runtime_error {
 public:
  explicit CommandError(std::string text, int status = kCommandFailed)
      : std::runtime_error(WithoutNul(std::move(text))), status_(status) {}

  int Status() const { return status_; }

 private:
  /// `what` would end there.
  static std::string WithoutNul(std::string text) {
    std::ranges::replace(text, '\0', ' ');
    return text;
  }

  int status_;
};

}  // namespace quorvantis::cli
