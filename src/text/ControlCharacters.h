// SPDX-License-Identifier: MIT
#pragma once

namespace quorvantis {

/// A character that steers terminals and devices, and shows as nothing.
constexpr bool IsControl(char16_t unit) {
  return unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
}

}  // namespace quorvantis
