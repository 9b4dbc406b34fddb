// SPDX-License-Identifier: MIT
#include "import/ImportMarkers.h"
#include "import/RuleKeys.h"
#include "import/TextMarking.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// Columns of a table, counted from 1; 0 if not found.
struct TableColumns {
  std::size_t question = 0;
  std::size_t answer = 0;
};

/// If several cells contain a key, the last counts. Every text contains an empty key.
TableColumns FindColumns(const PaperTable& table, const ImportSettings& rules) {
  TableColumns columns;
  for (std::size_t column = 1; column <= table.Columns(); ++column) {
    const std::u16string_view heading = table.Cell(1, column);
    if (heading.find(rules.m_strTableAnsKey) != heading.npos) columns.answer = column;
    if (heading.find(rules.m_strTableQuesKey) != heading.npos) columns.question = column;
  }
  return columns;
}

/// The text of a cell without the end mark of word processors.
std::u16string_view CellText(const PaperTable& table, std::size_t row, std::size_t column) {
  const std::u16string_view text = table.Cell(row, column);
  return TextBeforeNul(text.substr(0, text.find_last_not_of(u"\u0007\r\n\t ") + 1));
}

/// Deliberate: as many characters as the label has are removed from the start of the answer, wherever the
/// label is; rules assume labels there.
std::u16string_view WithoutLabel(std::u16string_view answer, const RuleSearch& label, int& count) {
  const auto match = label.Find(answer);
  if (!match) return answer;
  ++count;
  return answer.substr(MatchSpan(*match).Size());
}

void MarkTable(const PaperTable& table, const ImportSettings& rules, const RuleSearch& label,
               std::u16string& marked, int& labels) {
  const TableColumns columns = FindColumns(table, rules);
  // A table needs both columns.
  if (columns.question == 0 || columns.answer == 0) return;
  for (std::size_t row = 2; row <= table.rows.size(); ++row) {
    marked += kQuestionMarker;
    marked += CellText(table, row, columns.question);
    marked += kAnswerMarker;
    marked += WithoutLabel(CellText(table, row, columns.answer), label, labels);
  }
}

}  // namespace

std::size_t PaperTable::Columns() const {
  std::size_t columns = 0;
  for (const auto& row : rows) columns = std::max(columns, row.size());
  return columns;
}

std::u16string_view PaperTable::Cell(std::size_t row, std::size_t column) const {
  if (row < 1 || row > rows.size() || column < 1 || column > rows[row - 1].size()) return {};
  return rows[row - 1][column - 1];
}

MarkedText TableToString(const std::vector<PaperTable>& tables, const ImportSettings& rules,
                         const CancelHook& isCancelled) {
  MarkedText marked;
  const RuleSearch label(rule_key::kPreAnswer, rules.m_strPreAnswer, isCancelled);
  int labels = 0;
  try {
    for (const PaperTable& table : tables) MarkTable(table, rules, label, marked.text, labels);
  } catch (const ImportFailure& failure) {
    marked.failure = failure;
    return marked;
  }
  marked.text += kQuestionMarker;
  marked.counts.emplace_back(rule_key::kPreAnswer, labels);
  return marked;
}

}  // namespace quorvantis
