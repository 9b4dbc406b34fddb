// SPDX-License-Identifier: MIT
// The columns of a table of questions.
#pragma once

#include "exchange/TableCells.h"
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

  /// Whether questions can be read by it.
  bool IsUsable() const { return text.has_value() && (kind || !options.empty() || answers || modelAnswer); }
};

TableColumns ColumnsOf(const TableRow& names);

/// The kind that a cell names; nothing if it names none.
std::optional<QuestionKind> KindInCell(std::u16string_view cell);

std::u16string JoinAnswers(const std::vector<std::u16string>& answers);
std::vector<std::u16string> AnswersInCell(std::u16string_view cell);

/// Whether option `index` (0 for A) is right: a cell has letters ("AC", "a, c"), numbers ("1, 3") or the
/// text of the option.
bool IsNamedRight(std::u16string_view cell, std::size_t index, std::u16string_view option);

}  // namespace quorvantis
