// SPDX-License-Identifier: MIT
#include "import/labels/LineText.h"
#include "import/lines/LineLabel.h"
#include "import/paper/PaperRewrite.h"
#include "import/prepare/Steps.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// An option in a line of several.
struct ColumnCell {
  LineLabel label;
  std::size_t begin = 0;  ///< of its label, with its bracket
  std::size_t end = 0;    ///< of its text
};

/// Options that run down the columns: "a. c." above "b. d.".
class ColumnSearch {
 public:
  explicit ColumnSearch(const PaperText& text) : paper_(text), text_(text.characters) {
    for (const TextSpan& line : LinesOf(text_, {0, text_.size()})) rows_.push_back(CellsOf(line));
  }

  std::vector<PaperEdit> Edits() {
    for (std::size_t i = 0; i < rows_.size();) {
      const std::size_t rows = RowsFrom(i);
      if (rows > 1) Move(i, rows);
      i += std::max<std::size_t>(rows, 1);
    }
    return std::move(edits_);
  }

 private:
  using Cells = std::vector<ColumnCell>;

  /// The options of a line; nothing unless it begins with one.
  Cells CellsOf(TextSpan line) const {
    constexpr std::size_t kMostCells = 4;
    Cells cells;
    std::size_t at = SkipBlanks(text_, line.begin, line.end);
    while (cells.size() < kMostCells) {
      const auto label = LineLabelOf(text_, {at, line.end});
      if (!label || label->close.IsEmpty()) break;
      cells.push_back({*label, at, line.end});
      at = NextColumn(label->close.end, line.end);
      if (at == line.end) break;
      cells.back().end = at;
    }
    // What follows a gap may be no option.
    if (!cells.empty()) cells.back().end = line.end;
    for (ColumnCell& cell : cells) cell.end = Trimmed(text_, {cell.begin, cell.end}).end;
    return cells;
  }

  /// Behind the next wide gap that a label follows; the end of the line if there is none.
  std::size_t NextColumn(std::size_t from, std::size_t end) const {
    for (std::size_t at = from; at < end; ++at) {
      if (!IsBlank(text_[at])) continue;
      const std::size_t next = SkipBlanks(text_, at, end);
      const bool isWide = next - at > 1 || text_[at] == u'\t' || text_[at] == u'\u3000';
      const auto label = isWide && next < end ? LineLabelOf(text_, {next, end}) : std::nullopt;
      if (label && !label->close.IsEmpty()) return next;
      at = std::max(next, at + 1) - 1;
    }
    return end;
  }

  /// The index in an alphabet that a cell's label can have; -1 for none.
  int IndexOf(const ColumnCell& cell, std::size_t alphabet) const {
    for (const AlphabetLabel& one : AlphabetLabelsAt(text_, cell.label.letter.begin)) {
      if (one.letter.alphabet == alphabet && one.size == cell.label.letter.Size())
        return static_cast<int>(one.letter.index);
    }
    return -1;
  }

  /// How many lines from this one on hold options that run down; 0 for none.
  std::size_t RowsFrom(std::size_t first) const {
    const Cells& top = rows_[first];
    if (top.size() < 2) return 0;
    for (const AlphabetLabel& one : AlphabetLabelsAt(text_, top[0].label.letter.begin)) {
      if (one.letter.index != 0) continue;
      const int rows = IndexOf(top[1], one.letter.alphabet);
      if (rows > 1 && AreRows(first, static_cast<std::size_t>(rows), one.letter.alphabet))
        return static_cast<std::size_t>(rows);
    }
    return 0;
  }

  bool AreRows(std::size_t first, std::size_t count, std::size_t alphabet) const {
    for (std::size_t row = 0; row < count; ++row) {
      if (first + row >= rows_.size()) return false;
      const Cells& cells = rows_[first + row];
      const std::size_t columns = rows_[first].size();
      // The last column may be shorter.
      if (cells.size() > columns || cells.size() + 1 < columns || cells.empty()) return false;
      for (std::size_t column = 0; column < cells.size(); ++column) {
        if (IndexOf(cells[column], alphabet) != static_cast<int>(column * count + row)) return false;
      }
    }
    return true;
  }

  /// What stands behind the first column comes below it, column by column.
  void Move(std::size_t first, std::size_t count) {
    PaperText moved;
    const std::u16string_view lineEnd = LineEndNear(text_, rows_[first].front().begin);
    for (std::size_t column = 1; column < rows_[first].size(); ++column) {
      for (std::size_t row = first; row < first + count; ++row) {
        if (column >= rows_[row].size()) continue;
        moved.AppendInserted(lineEnd);
        moved.Append(paper_.Part({rows_[row][column].begin, rows_[row][column].end}));
      }
    }
    const std::size_t last = first + count - 1;
    for (std::size_t row = first; row < last; ++row)
      edits_.push_back({{rows_[row].front().end, rows_[row].back().end}, PaperText()});
    edits_.push_back({{rows_[last].front().end, rows_[last].back().end}, std::move(moved)});
  }

  const PaperText& paper_;
  std::u16string_view text_;
  std::vector<Cells> rows_;
  std::vector<PaperEdit> edits_;
};

}  // namespace

void step::OptionColumns(PaperText& text, const PreparationContext& /*context*/) {
  ApplyEdits(text, ColumnSearch(text).Edits());
}

}  // namespace quorvantis
