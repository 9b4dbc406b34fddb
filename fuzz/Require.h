// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>

/// What must hold whatever the input.
inline void Require(bool condition) {
  if (!condition) std::abort();
}
