// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StringTable.h"

#include <string>
#include <string_view>

namespace quorvantis {

/// Why an import ends without a result. Thrown inside of this folder, kept in outcomes beyond it.
struct ImportFailure {
  enum class Reason {
    Endless,      ///< what replaces a match of the rule is matched by it again, for ever
    EmptyAnswer,  ///< the rule finds answers that are empty, for ever
    TooLarge,     ///< a match would take more memory than it may
    Cancelled,    ///< the user ended it
  };
  Reason reason;
  std::u16string key;  ///< of the rule in "ImportExam.ini"
};

/// One line for the user: which rule, what is wrong with it and what to do. A user who ended the import needs
/// none.
std::u16string FailureText(const ImportFailure& failure, const StringTable& strings);

}  // namespace quorvantis
