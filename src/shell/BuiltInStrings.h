// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StringTable.h"

namespace quorvantis {

/// The texts that the program carries itself, in English: what is shown when no language library is in use.
class BuiltInStrings : public StringTable {
 public:
  std::u16string Text(int number) const override;
};

}  // namespace quorvantis
