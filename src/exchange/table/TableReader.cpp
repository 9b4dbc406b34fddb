// SPDX-License-Identifier: MIT
#include "exchange/form/ExchangeLimits.h"
#include "exchange/form/TextSource.h"
#include "exchange/table/TableColumns.h"
#include "exchange/table/TableFormat.h"
#include "exchange/table/TableQuestions.h"
#include "platform/texts/ExchangeTexts.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr char16_t kTab = u'\t';

/// Without the line that tells some spreadsheets the separator.
std::u16string_view WithoutSeparatorLine(std::u16string_view text) {
  const std::size_t end = text.find(u'\n');
  const bool isThere = text.starts_with(u"sep=") && end != text.npos && end <= 6;
  return isThere ? text.substr(end + 1) : text;
}

/// Nothing if the file does not begin with a row that names columns.
std::optional<char16_t> SeparatorOfTable(const ExchangeSource& source) {
  const std::u16string text = HeadText(source);
  const std::u16string_view head = WithoutSeparatorLine(text);
  const char16_t separator = SeparatorOf(head);
  const std::vector<TableRow> rows = ReadTable(head, separator, 1).rows;
  const bool isTable = !rows.empty() && ColumnsOf(rows[0]).IsUsable();
  return isTable ? std::optional(separator) : std::nullopt;
}

TableColumns ColumnsWithoutNames(std::vector<TableRow>& rows) {
  MoveKeysToOneColumn(rows);
  return ColumnsByShape(rows);
}

/// Of columns with names that mean nothing here, those that are not empty.
void TellOtherColumns(const TableColumns& columns, const std::vector<TableRow>& rows, ExchangeNotes& notes) {
  for (const std::size_t column : columns.others) {
    const bool isFilled = std::any_of(rows.begin() + 1, rows.end(), [column](const TableRow& row) {
      return column < row.size() && !Trimmed(row[column]).empty();
    });
    if (isFilled) notes.Tell(text_id::kExchangeColumnNotRead, {Excerpt(Trimmed(rows[0][column]))});
  }
}

}  // namespace

bool LooksLikeTable(const ExchangeSource& source) {
  return SeparatorOfTable(source).value_or(kTab) != kTab;
}

bool LooksLikeTabTable(const ExchangeSource& source) {
  return SeparatorOfTable(source) == kTab;
}

std::optional<ExchangedExam> TableReader::Read(const ExchangeSource& source, ReadingTools& tools) {
  const auto text = ReadSourceText(source, tools);
  if (!text) return std::nullopt;
  const std::u16string_view table = WithoutSeparatorLine(*text);
  constexpr std::size_t kRows = kMaxReadQuestions + 2;  // the names of the columns, and one too many
  TableRows read = ReadTable(table, SeparatorOf(table), kRows);
  if (read.hasOpenQuote) tools.notes.Tell(text_id::kExchangeQuoteOpen);
  std::vector<TableRow>& rows = read.rows;
  TableColumns columns = rows.empty() ? TableColumns{} : ColumnsOf(rows[0]);
  const std::size_t first = columns.IsUsable() ? 1 : 0;
  if (first == 0) columns = ColumnsWithoutNames(rows);
  if (!columns.IsUsable()) {
    tools.notes.Tell(text_id::kExchangeNoHeader);
    return std::nullopt;
  }
  TellOtherColumns(columns, rows, tools.notes);
  ExchangedExam exam;
  TableQuestions questions(columns, tools);
  const std::size_t end = std::min(rows.size(), first + kMaxReadQuestions);
  exam.isCutShort = end < rows.size();
  for (std::size_t i = first; i < end && !tools.progress.IsCancelled(); ++i)
    exam.questions.push_back(questions.Read(rows[i], static_cast<int>(i + 1 - first)));
  tools.notes.Begin(0);
  return exam;
}

}  // namespace quorvantis
