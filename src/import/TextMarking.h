// SPDX-License-Identifier: MIT
// Turns the text or the tables of a paper into marked text: what the rules recognise is replaced by the
// markers of ImportMarkers.h.
#pragma once

#include "import/ImportFailure.h"
#include "import/ImportSettings.h"
#include "import/RuleSearch.h"

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
};

/// Marks running text. The text ends at its first NUL.
MarkedText TextToString(std::u16string_view text, const ImportSettings& rules, const CancelHook& isCancelled);

/// A table of a paper: rows of cell texts. Rows may have different lengths; a missing cell is empty.
struct PaperTable {
  std::vector<std::vector<std::u16string>> rows;

  std::size_t Columns() const;
  /// The text of a cell; both count from 1.
  std::u16string_view Cell(std::size_t row, std::size_t column) const;
};

/// Marks papers that are tables: one question in each row except the first, which identifies the columns.
MarkedText TableToString(const std::vector<PaperTable>& tables, const ImportSettings& rules,
                         const CancelHook& isCancelled);

}  // namespace quorvantis
