// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamFields.h"

#include <array>
#include <string_view>

namespace quorvantis {

class ExamPaper;

/// Whether the short form would cut off part of a fill-in answer.
constexpr bool IsLongAnswer(std::u16string_view answer) {
  return answer.size() > kMaxShortAnswer;
}

/// The question slots whose fill-in answer is to be saved in the long form.
///
/// The application has one instance for its whole run, beside the document. A flag once set stays set, for
/// its slot number: New, Open, Insert and Delete do not touch it, on purpose, since the exam writer has
/// always relied on these flags. Only a question that moves as a whole (editor/QuestionOrder.h) takes its
/// flag along. Numbers outside 1 to 500 are ignored.
class LongAnswerFlags {
 public:
  bool IsSet(int question) const { return IsQuestionNumber(question) && flags_[Index(question)]; }
  void Set(int question) {
    if (IsQuestionNumber(question)) flags_[Index(question)] = true;
  }

  /// Sets or clears a flag: for a question that moves to another slot as a whole.
  void Assign(int question, bool isLong) {
    if (IsQuestionNumber(question)) flags_[Index(question)] = isLong;
  }

  /// Sets the flag of a question if its answer is long.
  void SetIfLong(int question, std::u16string_view answer) {
    if (IsLongAnswer(answer)) Set(question);
  }

  /// The same for all questions.
  void SetWhereNeeded(const ExamPaper& exam);

  bool operator==(const LongAnswerFlags&) const = default;

 private:
  static std::size_t Index(int question) { return static_cast<std::size_t>(question); }

  std::array<bool, kQuestionSlots> flags_{};
};

}  // namespace quorvantis
