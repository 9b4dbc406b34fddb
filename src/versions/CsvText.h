// SPDX-License-Identifier: MIT
// Tables for spreadsheets: UTF-8 with a mark that tells so, commas between cells, lines that end in CR LF.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

using CsvRow = std::vector<std::u16string>;

/// The table as the bytes of a file. A cell that a spreadsheet would take for a formula gets an apostrophe in
/// front, which shows it as text.
std::string CsvBytes(const std::vector<CsvRow>& rows);

/// The table in the bytes of a file, with its apostrophes; nothing if a quotation mark is not closed or the
/// mark at the beginning is missing.
std::optional<std::vector<CsvRow>> ReadCsv(std::string_view bytes);

/// The content of a cell as CsvBytes stores it.
std::u16string CsvCell(std::u16string_view text);

}  // namespace quorvantis
