// SPDX-License-Identifier: MIT
// Tables as text: cells separated by commas, semicolons or tabs, in quotes where need be (RFC 4180).
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

using TableRow = std::vector<std::u16string>;

struct TableRows {
  std::vector<TableRow> rows;  ///< without empty ones
  bool hasOpenQuote = false;   ///< a quotation mark was never closed, and is read as a character
};

/// The separator of a table, as its first row suggests.
char16_t SeparatorOf(std::u16string_view table);

/// The rows of a table whose lines end in LF, at most `limit`, and of each the first thousand cells.
TableRows ReadTable(std::u16string_view table, char16_t separator, std::size_t limit);

/// A cell as it stands in a table. A spreadsheet would take what begins with "=" and the like for a formula
/// and compute it, so an apostrophe is put in front.
std::u16string CellText(std::u16string_view cell, char16_t separator);

/// The cell without that apostrophe.
std::u16string WithoutGuard(std::u16string_view cell);

}  // namespace quorvantis
