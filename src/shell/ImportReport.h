// SPDX-License-Identifier: MIT
#pragma once

#include "import/ImportSettings.h"
#include "import/PaperReader.h"
#include "import/QuestionTextParser.h"
#include "import/TextMarking.h"

#include <string>
#include <vector>

namespace quorvantis {

/// What an import was, for the user and for whoever looks into it.
struct ImportReport {
  bool imported = false;  ///< the exam has been changed by what was read; false when the user gave up
  ImportSettings rules;
  PaperContent content;  ///< of the document
  MarkedText marked;
  ReadPaper paper;
  int firstSlot = 1;
  int nextSlot = 1;              ///< the one after the last slot written
  int removed = 0;               ///< questions taken out again, for pictures or formulas
  std::vector<int> replaced;     ///< numbers of earlier questions that are no more
  std::vector<int> filesStayed;  ///< imported questions with attached files of earlier ones
  int loneLineEnds = 0;          ///< questions with line ends that pages do not show as they are
};

/// The report as lines for the user, in the language of `strings`: the first tells what was read, the others
/// what was not or may surprise.
std::vector<std::u16string> ImportSummary(const ImportReport& report, const StringTable& strings);

}  // namespace quorvantis
