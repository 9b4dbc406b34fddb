// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamLimits.h"

#include <array>

namespace quorvantis {

class ExamPaper;

/// Which question slots are to be saved with the long form of the fill-in answer.
///
/// The application has one instance for its whole run, beside the document. A flag that is set stays set, and
/// stays with its slot number: New, Open, Insert and Delete leave it alone on purpose, since the exam writer
/// has always taken the form from here. Numbers outside 1 to 500 are ignored.
class LongAnswerFlags {
 public:
  bool IsSet(int question) const { return IsQuestionNumber(question) && flags_[Index(question)]; }
  void Set(int question) {
    if (IsQuestionNumber(question)) flags_[Index(question)] = true;
  }

  /// Sets the flags of all answers that the short form would cut.
  void SetWhereNeeded(const ExamPaper& exam);

 private:
  static std::size_t Index(int question) { return static_cast<std::size_t>(question); }

  std::array<bool, kQuestionSlots> flags_{};
};

}  // namespace quorvantis
