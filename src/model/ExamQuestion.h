// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamLimits.h"

#include <array>
#include <string>
#include <string_view>

namespace quorvantis {

/// The kind of a question. A file can hold any other number; it is kept, and shown as a question without
/// answers.
enum class QuestionKind : int { Choice = 0, FillIn = 1, Essay = 2, Oral = 3 };

/// Separates the answers of a fill-in question.
inline constexpr std::u16string_view kListSeparator = u"<@>";

/// A list of attached files, packed from index 0; the first empty entry ends it.
using AttachmentList = std::array<std::u16string, kMaxAttachments>;

/// The five options of a question, A to E.
using OptionTexts = std::array<std::u16string, kOptionCount>;

/// One question slot of an exam: plain data. Texts may hold any UTF-16 units and have any length; the editor
/// and the exam file enforce the limits of ExamFields.h.
struct ExamQuestion {
  std::u16string text;
  OptionTexts options;
  std::u16string answerLetters;  ///< the ticked boxes in order, for example "ace"
  std::u16string answerText;     ///< fill-in answers, several separated by kListSeparator
  std::u16string essayAnswer;
  std::u16string responseText;  ///< printed on the answer sheet; the editor never fills it
  int responseValue = 0;        ///< printed on the answer sheet; the editor never sets it
  QuestionKind kind = QuestionKind::Choice;
  int answerMask = 0;               ///< A 16, B 8, C 4, D 2, E 1; see AnswerLettersToMask
  AttachmentList attachmentPaths;   ///< where the copy of each file is
  AttachmentList attachmentNames;   ///< the names that the user sees
  AttachmentList attachmentCopies;  ///< work copies to delete when the exam is closed
  int oralFlag = 0;                 ///< state of the oral toggle, 0 or 1
};

}  // namespace quorvantis
