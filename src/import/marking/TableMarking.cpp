// SPDX-License-Identifier: MIT
#include "import/marking/ImportMarkers.h"
#include "import/marking/RuleKeys.h"
#include "import/marking/TextMarking.h"

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
    const std::u16string_view heading = table.Cell(1, column).text;
    if (heading.find(rules.m_strTableAnsKey) != heading.npos) columns.answer = column;
    if (heading.find(rules.m_strTableQuesKey) != heading.npos) columns.question = column;
  }
  return columns;
}

/// The text of a cell without the end mark of word processors.
std::u16string_view CellText(const PaperCell& cell) {
  const std::u16string_view text = cell.text;
  return TextBeforeNul(text.substr(0, text.find_last_not_of(u"\u0007\r\n\t ") + 1));
}

/// Tables becoming one marked text.
class TablesMarking {
 public:
  TablesMarking(const ImportSettings& rules, const CancelHook& isCancelled, TraceOrigins trace)
      : rules_(rules), label_(rule_key::kPreAnswer, rules.m_strPreAnswer, isCancelled), trace_(trace) {}

  MarkedText Mark(const std::vector<PaperTable>& tables) {
    try {
      for (const PaperTable& table : tables) Mark(table);
    } catch (const ImportFailure& failure) {
      marked_.failure = failure;
      return std::move(marked_);
    }
    AddMarker(kQuestionMarker);
    marked_.counts.emplace_back(rule_key::kPreAnswer, labels_);
    return std::move(marked_);
  }

 private:
  void Mark(const PaperTable& table) {
    const TableColumns columns = FindColumns(table, rules_);
    // A table needs both columns.
    if (columns.question == 0 || columns.answer == 0) return;
    for (std::size_t row = 2; row <= table.rows.size(); ++row) {
      AddMarker(kQuestionMarker);
      const PaperCell& question = table.Cell(row, columns.question);
      Add(question, CellText(question));
      AddMarker(kAnswerMarker);
      const PaperCell& answer = table.Cell(row, columns.answer);
      Add(answer, WithoutLabel(CellText(answer)));
    }
  }

  /// Deliberate: as many characters as the label has are removed from the start of the answer, wherever the
  /// label is; rules assume labels there.
  std::u16string_view WithoutLabel(std::u16string_view answer) {
    const auto match = label_.Find(answer);
    if (!match) return answer;
    ++labels_;
    return answer.substr(MatchSpan(*match).Size());
  }

  void AddMarker(std::u16string_view marker) {
    marked_.text += marker;
    if (trace_ == TraceOrigins::Yes) marked_.trace.origins.resize(marked_.text.size(), kInserted);
  }

  /// `text` is a part of the cell's.
  void Add(const PaperCell& cell, std::u16string_view text) {
    marked_.text += text;
    if (trace_ == TraceOrigins::No) return;
    const std::size_t begin = cell.place + static_cast<std::size_t>(text.data() - cell.text.data());
    for (std::size_t i = 0; i < text.size(); ++i)
      marked_.trace.origins.push_back(static_cast<std::uint32_t>(begin + i));
  }

  const ImportSettings& rules_;
  const RuleSearch label_;
  const TraceOrigins trace_;
  int labels_ = 0;
  MarkedText marked_;
};

}  // namespace

std::size_t PaperTable::Columns() const {
  std::size_t columns = 0;
  for (const auto& row : rows) columns = std::max(columns, row.size());
  return columns;
}

const PaperCell& PaperTable::Cell(std::size_t row, std::size_t column) const {
  static const PaperCell kMissing;
  if (row < 1 || row > rows.size() || column < 1 || column > rows[row - 1].size()) return kMissing;
  return rows[row - 1][column - 1];
}

MarkedText TableToString(const std::vector<PaperTable>& tables, const ImportSettings& rules,
                         const CancelHook& isCancelled, TraceOrigins trace) {
  return TablesMarking(rules, isCancelled, trace).Mark(tables);
}

}  // namespace quorvantis
