// SPDX-License-Identifier: MIT
// What of the exam that is being edited was asked before, according to the bank.
#pragma once

#include "bank/search/BankMemory.h"
#include "desktop/bank/desk/BankDesk.h"
#include "desktop/bank/desk/BankExamNames.h"
#include "desktop/bank/desk/FileDigestCache.h"
#include "model/document/FrameSetExam.h"
#include "platform/StringTable.h"

#include <QString>

#include <cstddef>
#include <filesystem>
#include <memory>
#include <vector>

namespace quorvantis {

/// The exam that is being edited, as it is now.
struct OpenExam {
  std::shared_ptr<const FrameSetExam> exam;
  std::filesystem::path file;  ///< empty while it has none
};

struct AskedBefore {
  std::shared_ptr<const FrameSetExam> exam;  ///< that was compared; null before the first comparison
  BankLikeness likeness;                     ///< of its questions, the first one at place 0

  /// Questions of which the same was asked before.
  std::size_t SameCount() const;
  /// Further ones of which only a variant was.
  std::size_t VariantCount() const;
};

/// Compares an exam with those of the bank, on the thread of the caller. Tells the progress in questions;
/// what was found is incomplete when it is cancelled.
AskedBefore CompareWithBank(const BankDesk& desk, KeptBankMemory& memory, FileDigestCache& digests,
                            const OpenExam& open, Progress& progress);

/// The same questions before variants; among each, those of exams that were changed last come first.
void PutNewestFirst(std::vector<BankUse>& uses);

/// The names of the older exams that have questions of the exam.
BankExamNames NamesOfOlder(const AskedBefore& asked, const StringTable& strings);

/// "the same", "other numbers"…
QString RelationWords(QuestionRelation relation, const StringTable& strings);

/// "40 %".
QString ShareText(const BankShare& share, const StringTable& strings);

/// "Question 3: Which metal conducts…", for a place in the exam from 0 on.
QString QuestionCaption(const AskedBefore& asked, std::size_t question, const StringTable& strings);

/// All of it as plain text, with a line for each use and each older exam.
QString AskedBeforeText(const AskedBefore& asked, const StringTable& strings);

}  // namespace quorvantis
