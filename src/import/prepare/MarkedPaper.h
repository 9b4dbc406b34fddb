// SPDX-License-Identifier: MIT
// Prepares and marks a paper. Origins, where asked for, are places in Paper::source.
#pragma once

#include "import/marking/TextMarking.h"
#include "import/paper/Paper.h"
#include "import/prepare/PreparationMemory.h"

namespace quorvantis {

/// The running text, prepared by the steps that the rules name. The trace lists what they left out, tables
/// included, under the key "Prepare". `memory`, if given, is only for this paper.
MarkedText MarkText(const Paper& paper, const ImportSettings& rules, const CancelHook& isCancelled,
                    TraceOrigins trace = TraceOrigins::No, PreparationMemory* memory = nullptr);

/// A paper that is tables. No steps are run.
MarkedText MarkTables(const Paper& paper, const ImportSettings& rules, const CancelHook& isCancelled,
                      TraceOrigins trace = TraceOrigins::No);

}  // namespace quorvantis
