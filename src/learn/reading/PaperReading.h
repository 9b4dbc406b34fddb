// SPDX-License-Identifier: MIT
#pragma once

#include "import/marking/QuestionTextParser.h"
#include "import/marking/TextMarking.h"
#include "import/paper/Paper.h"
#include "import/prepare/PreparationMemory.h"

namespace quorvantis {

/// What an import by some rules makes of a paper: the results of its own marking and parsing.
struct PaperReading {
  MarkedText marked;  ///< with its trace into Paper::source
  ReadPaper paper;    ///< spans are places in the marked text

  bool HasFailed() const { return marked.failure.has_value() || paper.failure.has_value(); }
};

/// Reads a paper just as an import would. Never throws; failures are in the reading. `memory`, if given, is
/// only for this paper.
PaperReading ReadByRules(const Paper& paper, const ImportSettings& rules, const CancelHook& isCancelled,
                         PreparationMemory* memory = nullptr);

}  // namespace quorvantis
