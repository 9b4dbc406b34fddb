// SPDX-License-Identifier: MIT
#include "exchange/table/TableCells.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quorvantis {
namespace {

constexpr std::u16string_view kSeparators = u",;\t";
constexpr std::u16string_view kBeginsFormulas = u"=+-@\t'";
constexpr char16_t kGuard = u'\'';

bool IsGuarded(std::u16string_view cell) {
  return cell.size() > 1 && cell[0] == kGuard && kBeginsFormulas.find(cell[1]) != cell.npos;
}

constexpr std::size_t kMostCells = 1000;
constexpr int kMostOpenQuotes = 20;

/// Reads the cells of one table after the other.
class CellReading {
 public:
  CellReading(std::u16string_view table, char16_t separator) : table_(table), separator_(separator) {}

  bool IsAtEnd() const { return table_.empty(); }
  bool HasOpenQuote() const { return openQuotes_ > 0; }

  /// Reads a cell up to its separator or line end.
  std::u16string TakeCell() {
    const std::size_t quote = std::min(table_.find_first_not_of(u' '), table_.size());
    std::u16string cell;
    if (table_.substr(quote).starts_with(u'"') && openQuotes_ < kMostOpenQuotes) TakeQuoted(quote, cell);
    const char16_t ends[] = {separator_, u'\n', 0};
    const std::size_t end = std::min(table_.find_first_of(ends), table_.size());
    cell += table_.substr(0, end);
    table_.remove_prefix(end);
    return cell;
  }

  /// Whether another cell of the same row follows.
  bool GoesOn() {
    const bool isSeparator = table_.starts_with(separator_);
    if (!table_.empty()) table_.remove_prefix(1);
    return isSeparator && !table_.empty();
  }

 private:
  void TakeQuoted(std::size_t quote, std::u16string& cell) {
    std::u16string_view rest = table_.substr(quote + 1);
    for (;;) {
      const std::size_t end = rest.find(u'"');
      if (end == rest.npos) {
        ++openQuotes_;
        return cell.clear();
      }
      cell += rest.substr(0, end);
      rest.remove_prefix(end + 1);
      if (!rest.starts_with(u'"')) break;
      cell.push_back(u'"');
      rest.remove_prefix(1);
    }
    table_ = rest;
  }

  std::u16string_view table_;
  char16_t separator_;
  int openQuotes_ = 0;
};

/// The first row, line breaks within quotation marks included.
std::u16string_view FirstRow(std::u16string_view table) {
  bool isQuoted = false;
  for (std::size_t i = 0; i < table.size(); ++i) {
    if (table[i] == u'"') isQuoted = !isQuoted;
    if (table[i] == u'\n' && !isQuoted) return table.substr(0, i);
  }
  return table.substr(0, table.find(u'\n'));
}

}  // namespace

char16_t SeparatorOf(std::u16string_view table) {
  const std::u16string_view row = FirstRow(table);
  std::size_t counts[kSeparators.size()] = {};
  bool isQuoted = false;
  for (const char16_t unit : row) {
    if (unit == u'"') isQuoted = !isQuoted;
    const std::size_t separator = isQuoted ? kSeparators.npos : kSeparators.find(unit);
    if (separator != kSeparators.npos) ++counts[separator];
  }
  return kSeparators[static_cast<std::size_t>(std::max_element(std::begin(counts), std::end(counts)) -
                                              counts)];
}

TableRows ReadTable(std::u16string_view table, char16_t separator, std::size_t limit) {
  TableRows read;
  TableRow row;
  CellReading cells(table, separator);
  while (!cells.IsAtEnd() && read.rows.size() < limit) {
    std::u16string cell = cells.TakeCell();
    if (row.size() < kMostCells) row.push_back(std::move(cell));
    if (cells.GoesOn()) continue;
    const bool isEmpty =
        std::ranges::all_of(row, [](const std::u16string& filled) { return filled.empty(); });
    if (!isEmpty) read.rows.push_back(std::move(row));
    row.clear();
  }
  read.hasOpenQuote = cells.HasOpenQuote();
  return read;
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
