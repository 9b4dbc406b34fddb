// SPDX-License-Identifier: MIT
#include "import/prepare/MarkedPaper.h"

#include "import/marking/RuleKeys.h"
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

/// From places in the prepared text to those in the paper.
void MoveTo(const TextOrigins& source, TextOrigins& places) {
  for (std::uint32_t& place : places) {
    if (place != kInserted) place = source[place];
  }
}

/// What of the paper the steps have left out.
ReplacedMatch RemovedBySteps(const Paper& paper, const PaperText& prepared) {
  std::vector<bool> isKept(paper.source.Size(), false);
  for (const std::uint32_t place : prepared.origins) {
    if (place != kInserted) isKept[place] = true;
  }
  ReplacedMatch removed{std::u16string(rule_key::kPrepare), {}};
  for (std::size_t place = 0; place < isKept.size(); ++place) {
    if (!isKept[place]) removed.units.push_back(static_cast<std::uint32_t>(place));
  }
  return removed;
}

}  // namespace

MarkedText MarkText(const Paper& paper, const ImportSettings& rules, const CancelHook& isCancelled,
                    TraceOrigins trace, PreparationMemory* memory) {
  PreparedText prepared = PreparePaper(paper, rules, isCancelled, memory);
  if (prepared.failure) return {std::move(prepared.text.characters), {}, std::move(prepared.failure), {}};
  MarkedText marked = TextToString(prepared.text.characters, rules, isCancelled, trace);
  MoveTo(prepared.text.origins, marked.trace.origins);
  for (ReplacedMatch& match : marked.trace.replaced) {
    MoveTo(prepared.text.origins, match.units);
    std::erase(match.units, kInserted);  // of labels that steps have put in
  }
  if (trace == TraceOrigins::Yes) marked.trace.replaced.push_back(RemovedBySteps(paper, prepared.text));
  return marked;
}

MarkedText MarkTables(const Paper& paper, const ImportSettings& rules, const CancelHook& isCancelled,
                      TraceOrigins trace) {
  return TableToString(TablesOf(paper), rules, isCancelled, trace);
}

}  // namespace quorvantis
