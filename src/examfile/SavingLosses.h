// SPDX-License-Identifier: MIT
#pragma once

#include "model/LongAnswerFlags.h"
#include "model/document/ExamTexts.h"
#include "model/document/FrameSetExam.h"
#include "platform/StringTable.h"

#include <string>
#include <vector>

namespace quorvantis {

/// Something that a saved exam will no longer have.
struct SavingLoss {
  int question = 0;       ///< 0: it belongs to the exam as a whole
  std::u16string what{};  ///< for the user, in the language of the exam's services
  /// The author wrote it and would miss it. False for data that the question's kind does not use, and for
  /// data that only a file from another source can hold.
  bool isWork = false;
  bool canBeStored = false;      ///< StoreWhole can keep it
  TextPlace place = {};          ///< the field that loses it; of the question as a whole: its text
  bool isContentOfFile = false;  ///< an attached file would be stored without its content
};

/// The question has content: a text, an answer or a file.
bool HasAnything(const ExamQuestion& question);

/// What a save would lose, in the order of the questions, given the flags that the writer would use. Checks
/// whether the attached files exist.
std::vector<SavingLoss> FindSavingLosses(const FrameSetExam& exam, const LongAnswerFlags& flags);

/// "question 7: the fill-in answer is cut from 300 to 256 characters".
std::u16string LossLine(const SavingLoss& loss, const StringTable& strings);

/// Changes the exam so that a file can hold more of it: long fill-in answers get the long form, and a
/// question that would not be counted gets a text saying that it has none.
void StoreWhole(FrameSetExam& exam);

}  // namespace quorvantis
