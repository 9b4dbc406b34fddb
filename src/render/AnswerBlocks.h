// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamQuestion.h"
#include "platform/StringTable.h"
#include "render/RenderFlags.h"

#include <array>
#include <string>
#include <string_view>

namespace quorvantis {

/// One flag for each of the letters A to E.
using LetterFlags = std::array<bool, kOptionCount>;

/// The letters that occur in `text`, in either case; "null" has none.
LetterFlags LettersToFlags(std::u16string_view text);

/// The part of a question's row that depends on its kind: options or input, the key, and the student's
/// answer.
class AnswerBlocks {
 public:
  /// All must outlive the blocks. `number` is that of the question.
  AnswerBlocks(const ExamQuestion& question, int number, const RenderFlags& flags, bool printLayout,
               const StringTable& strings);

  std::u16string ChoiceBlock() const;
  std::u16string FillInBlock() const;
  std::u16string EssayBlock() const;

 private:
  std::u16string OptionCell(std::size_t option, char16_t letter) const;
  std::u16string ChoiceAnswerLines() const;
  std::u16string FillInAnswerLine() const;
  std::u16string EssayAnswerLine() const;
  bool TakesInput() const { return !flags_.marks && !flags_.key && !flags_.response; }
  bool JudgedRight() const { return question_.responseValue == 1; }

  const ExamQuestion& question_;
  int number_;
  RenderFlags flags_;
  bool printLayout_;
  std::u16string correctAnswerIs_;
  std::u16string yourAnswerIs_;
  LetterFlags key_;
};

}  // namespace quorvantis
