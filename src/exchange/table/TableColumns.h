// SPDX-License-Identifier: MIT
// The columns of a table of questions.
#pragma once

#include "exchange/table/TableCells.h"
#include "model/ExamQuestion.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// Between the answers in a cell; protected by a backslash where it belongs to an answer.
inline constexpr char16_t kAnswerSeparator = u'|';

/// Which column is what, by the names in the first row.
struct TableColumns {
  std::optional<std::size_t> kind, text, right, answers, modelAnswer, score;
  std::vector<std::size_t> options;  ///< in the order of their letters or numbers
  bool areOurs = false;              ///< named and placed as this program writes them

  /// Whether questions can be read by it.
  bool IsUsable() const { return text.has_value() && (kind || !options.empty() || answers || modelAnswer); }
};

/// The names of the columns in tables that this program writes.
TableRow WrittenColumnNames();

TableColumns ColumnsOf(const TableRow& names);

/// The columns of a table without names, such as cells pasted from a spreadsheet: a question and its answer,
/// or a question, its options and which of them are right. Not usable if the cells do not look like that.
TableColumns ColumnsByShape(const std::vector<TableRow>& rows);

/// The kind that a cell names; nothing if it names none.
std::optional<QuestionKind> KindInCell(std::u16string_view cell);

std::u16string JoinAnswers(const std::vector<std::u16string>& answers);
std::vector<std::u16string> AnswersInCell(std::u16string_view cell);

/// The options that the cell of the right ones names.
struct NamedOptions {
  std::vector<bool> rights;
  bool isAmbiguous = false;  ///< whether the cell could name others as well
};

/// Which options are right, given the texts of all: a cell has letters ("AC", "a, c") or numbers ("1, 3")
/// that all name options, or the text of one. If it could be both, a single letter or number is what it says,
/// and anything longer is the text; but in a table that this program wrote, letters as it writes them are
/// letters.
NamedOptions NamedRights(std::u16string_view cell, const std::vector<std::u16string>& options, bool isOurs);

}  // namespace quorvantis
