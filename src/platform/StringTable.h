// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace quorvantis {

/// The texts of the language in use, by number: every language library has 101 to 173; later texts start at
/// 1000.
class StringTable {
 public:
  virtual ~StringTable() = default;

  /// The text, or an empty one when the language has none of that number.
  virtual std::u16string Text(int number) const = 0;
};

}  // namespace quorvantis
