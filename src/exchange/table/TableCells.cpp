// SPDX-License-Identifier: MIT
#include "exchange/table/TableCells.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::u16string_view kSeparators = u",;\t";
constexpr std::u16string_view kBeginsFormulas = u"=+-@\t'";
constexpr char16_t kGuard = u'\'';

bool IsGuarded(std::u16string_view cell) {
  return cell.size() > 1 && cell[0] == kGuard && kBeginsFormulas.find(cell[1]) != cell.npos;
}

/// Reads the cell at the front of `table` and cuts it off, up to its separator or line end.
std::u16string TakeCell(std::u16string_view& table, char16_t separator) {
  std::u16string cell;
  const char16_t ends[] = {separator, u'\n', 0};
  if (table.starts_with(u'"')) {
    table.remove_prefix(1);
    while (!table.empty()) {
      const std::size_t quote = std::min(table.find(u'"'), table.size());
      cell += table.substr(0, quote);
      table.remove_prefix(std::min(quote + 1, table.size()));
      if (!table.starts_with(u'"')) break;
      cell.push_back(u'"');
      table.remove_prefix(1);
    }
  }
  const std::size_t end = std::min(table.find_first_of(ends), table.size());
  cell += table.substr(0, end);
  table.remove_prefix(end);
  return cell;
}

}  // namespace

char16_t SeparatorOf(std::u16string_view table) {
  const std::u16string_view line = table.substr(0, table.find(u'\n'));
  const auto count = [line](char16_t separator) { return std::ranges::count(line, separator); };
  return *std::max_element(kSeparators.begin(), kSeparators.end(),
                           [&](char16_t a, char16_t b) { return count(a) < count(b); });
}

std::vector<TableRow> ReadTable(std::u16string_view table, char16_t separator, std::size_t limit) {
  std::vector<TableRow> rows;
  TableRow row;
  while (!table.empty() && rows.size() < limit) {
    row.push_back(TakeCell(table, separator));
    const bool goesOn = table.starts_with(separator);
    if (!table.empty()) table.remove_prefix(1);
    if (goesOn && !table.empty()) continue;
    const bool isEmpty = std::ranges::all_of(row, [](const std::u16string& cell) { return cell.empty(); });
    if (!isEmpty) rows.push_back(std::move(row));
    row.clear();
  }
  return rows;
}

std::u16string CellText(std::u16string_view cell, char16_t separator) {
  std::u16string text;
  if (!cell.empty() && kBeginsFormulas.find(cell[0]) != cell.npos) text.push_back(kGuard);
  text += cell;
  const char16_t special[] = {separator, u'"', u'\n', u'\r', 0};
  if (text.find_first_of(special) == text.npos) return text;
  std::u16string quoted = u"\"";
  for (const char16_t unit : text) quoted.append(unit == u'"' ? 2 : 1, unit);
  return quoted + u"\"";
}

std::u16string WithoutGuard(std::u16string_view cell) {
  return std::u16string(IsGuarded(cell) ? cell.substr(1) : cell);
}

}  // namespace quorvantis
