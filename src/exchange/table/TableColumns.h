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
  std::vector<std::size_t> others;   ///< with names that mean nothing here
  std::size_t count = 0;             ///< of all columns
  bool areOurs = false;              ///< named and placed as this program writes them

  /// Whether questions can be read by it.
  bool IsUsable() const { return text.has_value() && (kind || !options.empty() || answers || modelAnswer); }
};

/// The names of the columns in tables that this program writes.
TableRow WrittenColumnNames();

TableColumns ColumnsOf(const TableRow& names);

/// In rows without names the key is the last cell; in shorter rows it is moved below those of the longest.
void MoveKeysToOneColumn(std::vector<TableRow>& rows);

/// The columns of a table without names, such as cells pasted from a spreadsheet: a question and its answer,
/// or a question, its options and which of them are right, with running numbers in front or not. Not usable
/// if the cells do not look like that.
TableColumns ColumnsByShape(const std::vector<TableRow>& rows);

/// The kind that a cell names; nothing if it names none.
std::optional<QuestionKind> KindInCell(std::u16string_view cell);

/// Whether the cell of the kind asks for "true" or "false".
bool IsTrueFalse(std::u16string_view cell);

std::u16string JoinAnswers(const std::vector<std::u16string>& answers);
std::vector<std::u16string> AnswersInCell(std::u16string_view cell);

}  // namespace quorvantis
