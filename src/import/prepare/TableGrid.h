// SPDX-License-Identifier: MIT
#pragma once

#include "import/paper/Paper.h"

#include <string>
#include <vector>

namespace quorvantis {

/// The place of a cell in a text, without blanks at its ends.
using TableCell = TextSpan;

/// A table that stands in a text as it stands in its paper.
struct TableGrid {
  TextSpan place;  ///< all of it
  std::vector<std::vector<TableCell>> rows;
};

/// The tables of a paper that no step has changed yet, in their order.
std::vector<TableGrid> TablesIn(const PaperText& text, const Paper& paper);

/// A line that cells become.
struct TableLine {
  std::u16string label{};          ///< put in before them, without a blank
  TextSpan replaced{};             ///< what the label is written for; empty if it is new
  std::vector<TableCell> cells{};  ///< a tab comes between them
};

/// The lines as a text; each ends in CR.
PaperText TextOfLines(const PaperText& text, const std::vector<TableLine>& lines);

/// Each cell a line, row by row or column by column; empty cells are left out.
std::vector<TableLine> CellsByRows(const TableGrid& table);
std::vector<TableLine> CellsByColumns(const TableGrid& table);

}  // namespace quorvantis
