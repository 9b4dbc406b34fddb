// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Sheet.h"

namespace quorvantis {

/// Which page of an exam is wanted, and how.
struct SheetRequest {
  Sheet sheet = Sheet::Paper;
  SheetHead head{};
  bool largePrint = false;             ///< 18 points and wide spacing; numbers and keys stay the same
  bool languageIsRightToLeft = false;  ///< of the texts of the program
};

}  // namespace quorvantis
