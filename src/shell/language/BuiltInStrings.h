// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StringTable.h"

#include <vector>

namespace quorvantis {

/// The string table that the program carries itself, in English: what it shows when no language library is in
/// use.
class BuiltInStrings : public StringTable {
 public:
  std::u16string Text(int number) const override;

  /// The numbers of all texts, ascending. Every language library that comes with the program has them too.
  static std::vector<int> Numbers();
};

}  // namespace quorvantis
