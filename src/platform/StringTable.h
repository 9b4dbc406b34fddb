// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace quorvantis {

/// The texts of the language in use, by number: 101 to 173 are the numbers that every language library
/// carries, texts of later origin start at 1000.
class StringTable {
 public:
  virtual ~StringTable() = default;

  /// The text, or an empty one when the language has none of that number.
  virtual std::u16string Text(int number) const = 0;
};

}  // namespace quorvantis
