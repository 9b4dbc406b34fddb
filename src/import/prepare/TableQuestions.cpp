// SPDX-License-Identifier: MIT
#include "import/prepare/TableQuestions.h"

#include "import/labels/LineText.h"
#include "import/labels/Numerals.h"
#include "import/labels/OptionSequence.h"
#include "import/lines/AnswerHeadings.h"
#include "import/lines/LineWords.h"
#include "import/paper/PreparedLabels.h"
#include "text/ScriptDigits.h"

#include <algorithm>
#include <optional>

namespace quorvantis {
namespace {

constexpr std::size_t kMostOptions = 10;

/// The number that a cell is, whatever marks are around it; 0 if it is something else. Roman numerals are
/// letters here: "C" is an answer.
int NumberOfCell(std::u16string_view cell) {
  constexpr std::u16string_view kMarks = u" .)(）（．、:：]【】";
  constexpr std::size_t kLongest = 8;
  if (cell.size() > kLongest) return 0;
  const std::size_t begin = cell.find_first_not_of(kMarks);
  if (begin == cell.npos || (IsLetter(cell[begin]) && cell[begin] < 0x2E80)) return 0;
  return NumeralValue(cell.substr(begin, cell.find_last_not_of(kMarks) + 1 - begin));
}

/// The number in digits that a cell begins with, with a mark and text behind it; 0 if there is none.
int NumberBefore(std::u16string_view cell) {
  constexpr std::u16string_view kMarks = u".)）．、:：";
  const Numeral number = NumeralAt(cell, 0, NumeralKind::Decimal);
  if (number.size == 0 || number.size + 1 >= cell.size()) return 0;
  const bool isMarked = kMarks.find(cell[number.size]) != kMarks.npos;
  return isMarked && DigitValueOf(cell[number.size + 1]) < 0 ? number.value : 0;
}

/// "B", "a", "A, C", "T", "√".
bool IsKeyCell(std::u16string_view cell) {
  constexpr std::size_t kLongest = 8;
  if (cell.empty() || cell.size() > kLongest || NumberOfCell(cell) > 0) return false;
  const LineWords words(cell);
  const auto isShort = [](const std::u16string& word) { return word.size() == 1; };
  const bool areLetters = std::ranges::all_of(words.Words(), isShort) || cell.size() <= 3;
  return areLetters && words.Numbers() == 0;
}

/// The letter that a heading ends in: "A", "Option B", "选项C"; its index, or kMostOptions.
std::size_t OptionOfHeading(std::u16string_view heading) {
  constexpr std::size_t kLongest = 12;
  if (heading.empty() || heading.size() > kLongest) return kMostOptions;
  const char16_t last = heading.back();
  if (last < u'A' || last > u'J') return kMostOptions;
  if (heading.size() == 1) return last - u'A';
  const char16_t before = heading[heading.size() - 2];
  return IsBlank(before) || before >= 0x2E80 ? last - u'A' : kMostOptions;
}

/// What the columns of a table are for.
struct TableColumns {
  std::optional<std::size_t> number;
  std::size_t stem = 0;
  std::size_t firstOption = 0;
  std::size_t options = 0;
  std::optional<std::size_t> key;
  std::size_t firstRow = 0;       ///< behind the headings
  bool areStemsNumbered = false;  ///< each stem begins with its number, which stays
  bool areLists = false;          ///< the first option's column holds all of them in each cell
};

class RowReading {
 public:
  RowReading(const PaperText& text, const TableGrid& table) : text_(text.characters), rows_(table.rows) {}

  std::vector<TableLine> Lines(int firstNumber) const {
    const std::optional<TableColumns> columns = FindColumns();
    std::vector<TableLine> lines;
    if (!columns) return lines;
    for (std::size_t row = columns->firstRow; row < rows_.size(); ++row) {
      if (Cell(row, columns->stem).empty()) continue;
      AddRow(*columns, row, firstNumber++, lines);
    }
    return lines;
  }

 private:
  std::u16string_view Cell(std::size_t row, std::size_t column) const {
    return column < rows_[row].size() ? rows_[row][column].Of(text_) : std::u16string_view();
  }

  std::optional<TableColumns> FindColumns() const {
    constexpr std::size_t kFewestRows = 2;
    if (rows_.size() < kFewestRows || rows_.back().size() < 2) return std::nullopt;
    TableColumns columns;
    columns.firstRow = FirstNumberedRow();
    const bool hasLetters = FindLetters(columns);
    if (HasNumbers(columns.firstRow)) {
      columns.number = 0;
      if (!hasLetters) columns.stem = 1;
    } else if (HasNumberedStems(columns)) {
      columns.areStemsNumbered = true;
    } else if (!hasLetters) {
      return std::nullopt;
    }
    const std::size_t width = rows_.back().size();
    if (!hasLetters) columns.firstOption = columns.stem + 1;
    columns.areLists = !hasLetters && HoldsLists(columns);
    if (columns.areLists) columns.options = 1;
    const bool areCounted = hasLetters || columns.areLists;
    FindKey(columns, areCounted ? columns.firstOption + columns.options : width - 1, width);
    if (!areCounted) columns.options = columns.key.value_or(width) - columns.firstOption;
    return HasStems(columns) && HasFittingOptions(columns) ? std::optional(columns) : std::nullopt;
  }

  /// A title and a row of headings may precede it; without any number, the first row has the headings.
  std::size_t FirstNumberedRow() const {
    constexpr std::size_t kMostHeadings = 2;
    for (std::size_t row = 0; row < std::min(rows_.size(), kMostHeadings + 1); ++row) {
      if (NumberOfCell(Cell(row, 0)) > 0 || NumberBefore(Cell(row, 0)) > 0) return row;
    }
    return 1;
  }

  /// Whether most cells right of the stems hold the options of their rows, with labels.
  bool HoldsLists(const TableColumns& columns) const {
    std::size_t lists = 0;
    for (std::size_t row = columns.firstRow; row < rows_.size(); ++row) {
      if (columns.firstOption >= rows_[row].size()) continue;
      const TextSpan cell = rows_[row][columns.firstOption];
      const auto options = FindOptions(text_, cell);
      if (options && options->labels.front().label.begin == cell.begin) ++lists;
    }
    return lists > 0 && lists * 4 >= (rows_.size() - columns.firstRow) * 3;
  }

  /// Headings A, B, C…; the stem is before them.
  bool FindLetters(TableColumns& columns) const {
    if (columns.firstRow == 0) return false;
    const std::size_t row = columns.firstRow - 1;
    std::size_t first = 0;
    while (first < rows_[row].size() && OptionOfHeading(Cell(row, first)) != 0) ++first;
    if (first == 0 || first >= rows_[row].size()) return false;
    std::size_t count = 1;
    while (OptionOfHeading(Cell(row, first + count)) == count) ++count;
    columns.stem = first - 1;
    columns.firstOption = first;
    columns.options = count;
    return count >= 2;
  }

  /// In the first column, each the next.
  bool HasNumbers(std::size_t firstRow) const {
    if (firstRow >= rows_.size()) return false;
    int next = NumberOfCell(Cell(firstRow, 0));
    for (std::size_t row = firstRow; row < rows_.size(); ++row, ++next) {
      if (next == 0 || NumberOfCell(Cell(row, 0)) != next) return false;
    }
    return true;
  }

  /// "1. Which?" in the first column, each the next, and no numbers in front of the other cells.
  bool HasNumberedStems(const TableColumns& columns) const {
    if (columns.stem != 0 || columns.firstRow >= rows_.size()) return false;
    int next = NumberBefore(Cell(columns.firstRow, 0));
    for (std::size_t row = columns.firstRow; row < rows_.size(); ++row, ++next) {
      if (next == 0 || NumberBefore(Cell(row, 0)) != next) return false;
      for (std::size_t column = 1; column < rows_[row].size(); ++column) {
        if (NumberBefore(Cell(row, column)) > 0) return false;
      }
    }
    return true;
  }

  void FindKey(TableColumns& columns, std::size_t column, std::size_t width) const {
    if (column >= width || column <= columns.stem) return;
    std::size_t keys = 0;
    // What it is called says more than what it holds.
    if (columns.firstRow > 0 && AnswerHeadingOf(Cell(columns.firstRow - 1, column)) == AnswerHeading::Clear) {
      columns.key = column;
      return;
    }
    for (std::size_t row = columns.firstRow; row < rows_.size(); ++row) {
      if (Cell(row, column).empty()) continue;
      if (!IsKeyCell(Cell(row, column))) return;
      ++keys;
    }
    if (keys > 0 || column == columns.stem + 1) columns.key = column;
  }

  /// A table of measured values has numbers in its first column, too, but no sentences beside them.
  bool HasStems(const TableColumns& columns) const {
    constexpr std::size_t kShortest = 6;
    std::size_t stems = 0;
    for (std::size_t row = columns.firstRow; row < rows_.size(); ++row) {
      const std::u16string_view stem = Cell(row, columns.stem);
      const bool isChinese = std::ranges::any_of(stem, [](char16_t unit) { return unit >= 0x2E80; });
      if (stem.size() >= (isChinese ? kShortest : kShortest * 2) && !LineWords(stem).Words().empty()) ++stems;
    }
    return stems * 4 >= (rows_.size() - columns.firstRow) * 3;
  }

  /// A second column of long texts is one of answers, and what else there may be is not known.
  bool HasFittingOptions(const TableColumns& columns) const {
    return columns.areLists || columns.options == 0 ||
           (columns.options >= 2 && columns.options <= kMostOptions);
  }

  void AddRow(const TableColumns& columns, std::size_t row, int count, std::vector<TableLine>& lines) const {
    const auto& cells = rows_[row];
    const TextSpan number = columns.number ? cells[*columns.number] : TextSpan{};
    const int value = columns.number ? NumberOfCell(number.Of(text_)) : count;
    const std::u16string label = columns.areStemsNumbered ? u"" : PreparedNumber(value);
    lines.push_back({label, number, {cells[columns.stem]}});
    const std::size_t end = std::min(columns.firstOption + columns.options, cells.size());
    std::size_t last = end;
    while (last > columns.firstOption && cells[last - 1].IsEmpty()) --last;
    for (std::size_t column = columns.firstOption; column < last; ++column) {
      const bool isLabelled = IsLabelled(cells[column].Of(text_), column - columns.firstOption);
      const std::u16string option = isLabelled ? u"" : PreparedOption(column - columns.firstOption);
      lines.push_back({option, {}, {cells[column]}});
    }
    if (columns.key && *columns.key < cells.size() && !cells[*columns.key].IsEmpty())
      lines.push_back({std::u16string(kPreparedKey), {}, {cells[*columns.key]}});
  }

  /// "B. Rome" in the second column.
  static bool IsLabelled(std::u16string_view cell, std::size_t index) {
    if (cell.size() < 2) return false;
    const std::size_t at = kLabelOpens.find(cell[0]) == kLabelOpens.npos ? 0 : 1;
    const bool isClosed = at + 1 < cell.size() && kLabelCloses.find(cell[at + 1]) != kLabelCloses.npos;
    // "1,6 mm" is a number.
    const bool isNumber =
        at + 2 < cell.size() && DigitValueOf(cell[at]) >= 0 && DigitValueOf(cell[at + 2]) >= 0;
    if (isNumber) return false;
    const auto isIndex = [index](const AlphabetLetter& letter) { return letter.index == index; };
    return isClosed && std::ranges::any_of(AlphabetLettersOf(cell[at]), isIndex);
  }

  std::u16string_view text_;
  const std::vector<std::vector<TableCell>>& rows_;
};

}  // namespace

std::vector<TableLine> QuestionRows(const PaperText& text, const TableGrid& table, int firstNumber) {
  return RowReading(text, table).Lines(firstNumber);
}

bool IsKeyTable(const PaperText& text, const TableGrid& table) {
  std::size_t numbers = 0;
  std::size_t keys = 0;
  std::size_t others = 0;
  for (const auto& row : table.rows) {
    for (const TableCell& cell : row) {
      const std::u16string_view content = cell.Of(text.characters);
      if (NumberOfCell(content) > 0) {
        ++numbers;
      } else if (IsKeyCell(content)) {
        ++keys;
      } else if (!content.empty()) {
        ++others;
      }
    }
  }
  // Headings of rows or columns may stand beside them.
  return numbers >= 2 && keys >= 2 && others <= 2 && others * 2 <= keys;
}

}  // namespace quorvantis
