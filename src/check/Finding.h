// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/ExamTexts.h"

#include <string>
#include <string_view>

namespace quorvantis {

/// How bad it is: the exam cannot be used like this; it may be meant so, but look at it; or mere advice.
enum class Severity { Wrong, Doubtful, Hint };

/// Something that the check found in an exam.
struct Finding {
  std::string_view rule;  ///< its identifier, which never changes: "choice-without-key"
  Severity severity = Severity::Hint;
  TextPlace place;      ///< question 0: the exam as a whole. The field need not be one with a text.
  std::u16string text;  ///< for the user, in the language of the exam's services, without the question

  bool operator==(const Finding&) const = default;
};

}  // namespace quorvantis
