// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

using CsvRow = std::vector<std::u16string>;

/// The cells of a table that render/sheets/KeyTable.h has written; nothing if a quotation mark is not closed
/// or the mark at the beginning is missing.
std::optional<std::vector<CsvRow>> ReadCsv(std::string_view bytes);

}  // namespace quorvantis
