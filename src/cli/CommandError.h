// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>

namespace quorvantis::cli {

/// Ends a command with exit status 1. The text is one line: the file, what is wrong, what to do.
class CommandError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace quorvantis::cli
