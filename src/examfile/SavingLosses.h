// SPDX-License-Identifier: MIT
#pragma once

#include "model/LongAnswerFlags.h"
#include "model/document/FrameSetExam.h"
#include "platform/StringTable.h"

#include <string>
#include <vector>

namespace quorvantis {

/// Something that a saved exam will not have any more.
struct SavingLoss {
  int question = 0;       ///< 0: it belongs to the exam as a whole
  std::u16string what{};  ///< for the user, in the language of the exam's services
  /// Somebody wrote it and would miss it. Not so what a question of its kind has no use for, and what only a
  /// file written by other means can hold.
  bool isWork = false;
  bool canBeStored = false;  ///< by StoreWhole
};

/// Somebody has put something into the question: a text, an answer or a file.
bool HasAnything(const ExamQuestion& question);

/// What a save would lose, in the order of the questions, with the flags that the writer would go by. Whether
/// files are there is looked up.
std::vector<SavingLoss> FindSavingLosses(const FrameSetExam& exam, const LongAnswerFlags& flags);

/// "question 7: the fill-in answer is cut from 300 to 256 characters".
std::u16string LossLine(const SavingLoss& loss, const StringTable& strings);

/// Makes the exam one of which a file holds more: long fill-in answers get the long form, and a question that
/// would not be counted gets a text that says that it has none.
void StoreWhole(FrameSetExam& exam);

}  // namespace quorvantis
