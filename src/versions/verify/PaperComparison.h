// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"
#include "platform/PdfText.h"
#include "platform/Sheet.h"
#include "platform/StringTable.h"

#include <string>
#include <vector>

namespace quorvantis {

/// What comparing a printed sheet has found.
struct PaperDifferences {
  std::vector<std::u16string> faults;  ///< one line each, for the user
  std::vector<int> notCompared;        ///< questions that are not found, and cannot be read back for sure
};

/// What a printed sheet of a counted exam lacks: question by question, its
/// number, text and options with their letters in their order, the sign at each right option of solutions,
/// the key of each question on a key; and the name and the code of the version on every page. At most one
/// line for a question.
PaperDifferences ComparePaper(const FrameSetExam& exam, Sheet sheet, const SheetHead& head,
                              const PdfPages& printed, const StringTable& strings);

}  // namespace quorvantis
