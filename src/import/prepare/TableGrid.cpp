// SPDX-License-Identifier: MIT
#include "import/prepare/TableGrid.h"

#include "import/labels/LineText.h"
#include "import/paper/PaperRewrite.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// For each place in the paper that in the text, or npos.
std::vector<std::size_t> PlacesByOrigin(const PaperText& text, std::size_t sourceSize) {
  std::vector<std::size_t> places(sourceSize, std::u16string::npos);
  for (std::size_t at = 0; at < text.Size(); ++at) {
    if (text.origins[at] < sourceSize) places[text.origins[at]] = at;
  }
  return places;
}

bool IsUnchanged(const std::vector<std::size_t>& places, TextSpan table) {
  if (table.IsEmpty() || places[table.begin] == std::u16string::npos) return false;
  for (std::size_t at = table.begin; at < table.end; ++at) {
    if (places[at] != places[table.begin] + (at - table.begin)) return false;
  }
  return true;
}

}  // namespace

std::vector<TableGrid> TablesIn(const PaperText& text, const Paper& paper) {
  std::vector<TableGrid> tables;
  if (paper.tables.empty()) return tables;
  const std::vector<std::size_t> places = PlacesByOrigin(text, paper.source.Size());
  for (const TableInPaper& table : paper.tables) {
    if (!IsUnchanged(places, table.place)) continue;
    const auto moved = [&](TextSpan span) {
      const std::size_t begin = places[table.place.begin] + (span.begin - table.place.begin);
      return TextSpan{begin, begin + span.Size()};
    };
    TableGrid grid{moved(table.place), {}};
    for (const auto& row : table.rows) {
      auto& cells = grid.rows.emplace_back();
      for (const TextSpan& cell : row) cells.push_back(Trimmed(text.characters, moved(cell)));
    }
    tables.push_back(std::move(grid));
  }
  return tables;
}

PaperText TextOfLines(const PaperText& text, const std::vector<TableLine>& lines) {
  PaperText all;
  for (const TableLine& line : lines) {
    if (!line.label.empty()) {
      all.Append(Rewritten(text, line.replaced, line.label));
      if (!line.cells.empty()) all.AppendInserted(u" ");
    }
    for (std::size_t i = 0; i < line.cells.size(); ++i) {
      if (i > 0) all.AppendInserted(u"\t");
      all.Append(text.Part(line.cells[i]));
    }
    all.AppendInserted(u"\r");
  }
  return all;
}

std::vector<TableLine> CellsByRows(const TableGrid& table) {
  std::vector<TableLine> lines;
  for (const auto& row : table.rows) {
    for (const TableCell& cell : row) {
      if (!cell.IsEmpty()) lines.push_back({{}, {}, {cell}});
    }
  }
  return lines;
}

std::vector<TableLine> CellsByColumns(const TableGrid& table) {
  std::vector<TableLine> lines;
  std::size_t columns = 0;
  for (const auto& row : table.rows) columns = std::max(columns, row.size());
  for (std::size_t column = 0; column < columns; ++column) {
    for (const auto& row : table.rows) {
      if (column < row.size() && !row[column].IsEmpty()) lines.push_back({{}, {}, {row[column]}});
    }
  }
  return lines;
}

}  // namespace quorvantis
