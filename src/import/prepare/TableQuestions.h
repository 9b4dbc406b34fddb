// SPDX-License-Identifier: MIT
// Tables with a question in each row.
#pragma once

#include "import/prepare/TableGrid.h"

#include <vector>

namespace quorvantis {

/// The lines of a table with a number, a question and maybe options and a key in each row, with or without a
/// row of headings: "⟦3⟧ stem", "⟦A⟧ option", "⟦=⟧ B". Also of one without numbers whose headings are the
/// letters of the options; these rows are counted from `firstNumber` on. Nothing if it is no such table.
std::vector<TableLine> QuestionRows(const PaperText& text, const TableGrid& table, int firstNumber);

/// Whether the cells are numbers and short answers alone: a key.
bool IsKeyTable(const PaperText& text, const TableGrid& table);

}  // namespace quorvantis
