// SPDX-License-Identifier: MIT
#include "import/prepare/MarkedPaper.h"

#include "import/prepare/PreparationSteps.h"

#include <utility>

namespace quorvantis {
namespace {

std::vector<PaperTable> TablesOf(const Paper& paper) {
  std::vector<PaperTable> tables;
  for (const TableInPaper& table : paper.tables) {
    auto& rows = tables.emplace_back().rows;
    for (const auto& row : table.rows) {
      auto& cells = rows.emplace_back();
      for (const TextSpan& cell : row)
        cells.push_back({std::u16string(cell.Of(paper.source.characters)), cell.begin});
    }
  }
  return tables;
}

}  // namespace

MarkedText MarkText(const Paper& paper, const ImportSettings& rules, const CancelHook& isCancelled,
                    TraceOrigins trace) {
  PreparedText prepared = PreparePaper(paper, rules, isCancelled);
  if (prepared.failure) return {std::move(prepared.text.characters), {}, std::move(prepared.failure), {}};
  MarkedText marked = TextToString(prepared.text.characters, rules, isCancelled, trace);
  for (std::uint32_t& origin : marked.origins) {
    if (origin != kInserted) origin = prepared.text.origins[origin];
  }
  return marked;
}

MarkedText MarkTables(const Paper& paper, const ImportSettings& rules, const CancelHook& isCancelled,
                      TraceOrigins trace) {
  return TableToString(TablesOf(paper), rules, isCancelled, trace);
}

}  // namespace quorvantis
