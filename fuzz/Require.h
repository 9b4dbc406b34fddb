// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>

/// Checks a condition that must hold for any input.
inline void Require(bool condition) {
  if (!condition) std::abort();
}
