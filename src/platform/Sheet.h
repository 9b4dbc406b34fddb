// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace quorvantis {

/// What is made of an exam for the classroom.
enum class Sheet {
  Paper,      ///< the questions, with room for answers
  Solutions,  ///< the same with the right answers
  Key,        ///< the right answers alone
  Answers,    ///< boxes and lines to answer on
};

/// What tells copies of an exam apart, at the foot of every page. Both may be empty.
struct SheetHead {
  std::u16string versionName;  ///< of one version of the exam, for example "A"
  std::u16string code;         ///< a short text that identifies the exam file
};

}  // namespace quorvantis
