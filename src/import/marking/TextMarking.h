// SPDX-License-Identifier: MIT
// Turns the text or the tables of a paper into marked text: what the rules recognise is replaced by the
// markers of ImportMarkers.h.
#pragma once

#include "import/marking/ImportFailure.h"
#include "import/marking/ImportSettings.h"
#include "import/marking/MarkingTrace.h"
#include "import/marking/RuleSearch.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvantis {

/// How often each rule matched, by its key, in the order in which the rules were tried. Without empty rules.
using RuleCounts = std::vector<std::pair<std::u16string, int>>;

/// A paper with markers. After a failure the text shows how far the marking got, to help find the reason.
struct MarkedText {
  std::u16string text{};
  RuleCounts counts{};
  std::optional<ImportFailure> failure{};
  MarkingTrace trace{};  ///< in the unmarked text; empty unless asked for
};

enum class TraceOrigins { No, Yes };

/// Marks running text. The text ends at its first NUL.
MarkedText TextToString(std::u16string_view text, const ImportSettings& rules, const CancelHook& isCancelled,
                        TraceOrigins trace = TraceOrigins::No);

/// A cell of a table.
struct PaperCell {
  std::u16string text{};
  std::size_t place = 0;  ///< where the text begins in the paper, for those who ask for origins
};

/// A table of a paper. Rows may have different lengths; a missing cell is empty.
struct PaperTable {
  std::vector<std::vector<PaperCell>> rows;

  std::size_t Columns() const;
  /// The cell there; both count from 1.
  const PaperCell& Cell(std::size_t row, std::size_t column) const;
};

/// Marks papers that are tables: one question in each row except the first, which identifies the columns.
MarkedText TableToString(const std::vector<PaperTable>& tables, const ImportSettings& rules,
                         const CancelHook& isCancelled, TraceOrigins trace = TraceOrigins::No);

}  // namespace quorvantis
