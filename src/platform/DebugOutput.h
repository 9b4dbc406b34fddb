// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace quorvantis {

/// Debug output, off unless asked for.
class DebugOutput {
 public:
  virtual ~DebugOutput() = default;

  /// Writes one line; the prefix "[---Quorvantis---]:" and the line break are added here.
  virtual void Line(std::u16string_view text) = 0;
};

}  // namespace quorvantis
