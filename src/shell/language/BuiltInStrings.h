// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StringTable.h"

#include <vector>

namespace quorvantis {

/// The texts that the program carries itself, in English: what is shown when no language library is in use.
class BuiltInStrings : public StringTable {
 public:
  std::u16string Text(int number) const override;

  /// The numbers of all texts. Every language library that comes with the program has them too.
  static std::vector<int> Numbers();
};

}  // namespace quorvantis
