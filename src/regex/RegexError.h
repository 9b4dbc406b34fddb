// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

namespace quorvantis {

/// Where a pattern is invalid and why, for people who write patterns. Thrown between the stages of
/// compilation, never beyond them.
struct RegexError {
  std::size_t position;  ///< in UTF-16 units from the start of the pattern, at most its length
  std::string reason;    ///< English, without a full stop

  bool operator==(const RegexError&) const = default;
};

}  // namespace quorvantis
