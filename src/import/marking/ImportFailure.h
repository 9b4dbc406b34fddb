// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StringTable.h"

#include <string>
#include <string_view>

namespace quorvantis {

/// Why an import ends without a result. Thrown inside this folder; outside it is part of an outcome.
struct ImportFailure {
  enum class Reason {
    Endless,      ///< the rule matches what replaces its matches, forever
    EmptyAnswer,  ///< the rule finds empty answers, forever
    TooLarge,     ///< a match would exceed the memory limit
    Cancelled,    ///< the user cancelled
    UnknownStep,  ///< "Prepare" names a step that there is not
  };
  Reason reason;
  std::u16string key;  ///< of the rule in "ImportExam.ini", or the name of the step
};

/// One line for the user: which rule, what is wrong with it and what to do. A user who ended the import needs
/// none.
std::u16string FailureText(const ImportFailure& failure, const StringTable& strings);

}  // namespace quorvantis
