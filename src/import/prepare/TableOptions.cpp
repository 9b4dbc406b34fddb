// SPDX-License-Identifier: MIT
#include "import/labels/LineText.h"
#include "import/labels/OptionSequence.h"
#include "import/lines/QuestionSigns.h"
#include "import/paper/PaperOutline.h"
#include "import/paper/PreparedLabels.h"
#include "import/prepare/Steps.h"
#include "import/prepare/TableGrid.h"
#include "import/prepare/TableQuestions.h"

#include <algorithm>
#include <map>

namespace quorvantis {
namespace {

/// Whether each of the lines begins with a label of the same run of options.
bool AreOptions(const PaperText& text, const std::vector<TableLine>& lines) {
  constexpr std::size_t kMost = 10;
  if (lines.size() < 2 || lines.size() > kMost) return false;
  const PaperText all = TextOfLines(text, lines);
  const auto covers = [&lines](const OptionSequence& run) {
    return run.labels.size() == lines.size() && run.LineStarts() == lines.size();
  };
  return std::ranges::any_of(FindOptionRuns(all.characters, {0, all.Size()}), covers);
}

/// A cell with a label and the next one with its text are one line.
std::vector<TableLine> InPairs(const std::vector<TableLine>& lines) {
  constexpr std::size_t kLongestLabel = 3;
  std::vector<TableLine> pairs;
  for (std::size_t i = 0; i + 1 < lines.size(); i += 2) {
    if (lines[i].cells.front().Size() > kLongestLabel) return {};
    pairs.push_back({{}, {}, {lines[i].cells.front(), lines[i + 1].cells.front()}});
  }
  if (lines.size() % 2 != 0) pairs.clear();
  return pairs;
}

/// Options with labels, in whatever order they are read.
std::vector<TableLine> LabelledOptions(const PaperText& text, const TableGrid& table) {
  constexpr std::size_t kMostCells = 24;
  const std::vector<TableLine> byRows = CellsByRows(table);
  if (byRows.size() > kMostCells) return {};
  for (auto& lines : {byRows, CellsByColumns(table), InPairs(byRows)}) {
    if (AreOptions(text, lines)) return lines;
  }
  return {};
}

/// The steps on tables of one text.
class TableReading {
 public:
  TableReading(const PaperText& text, const PreparationContext& context)
      : text_(text),
        context_(context),
        outline_(OutlineOf(text, context)),
        tables_(TablesIn(text, context.paper)) {}

  std::vector<PaperEdit> Edits() const {
    std::vector<PaperEdit> edits;
    const std::vector<bool> arePlain = PlainOptionTables();
    int counted = 0;
    for (std::size_t i = 0; i < tables_.size(); ++i) {
      if (IsKeyTable(text_, tables_[i])) continue;
      std::vector<TableLine> lines = LinesOf(tables_[i], counted);
      if (lines.empty() && arePlain[i]) lines = WithLabels(CellsByRows(tables_[i]));
      if (!lines.empty()) edits.push_back({tables_[i].place, TextOfLines(text_, lines)});
    }
    return edits;
  }

 private:
  /// `counted` are the questions of rows up to here.
  std::vector<TableLine> LinesOf(const TableGrid& table, int& counted) const {
    if (std::vector<TableLine> lines = QuestionRows(text_, table, counted + 1);
        AreMeantAsQuestions(table, lines)) {
      counted += static_cast<int>(std::ranges::count_if(lines, IsNumbered));
      return lines;
    }
    if (std::vector<TableLine> lines = LabelledOptions(text_, table); !lines.empty()) return lines;
    for (const auto& lines : {CellsByRows(table), CellsByColumns(table)}) {
      if (AreQuestions(table, lines)) return lines;
    }
    return {};
  }

  static bool IsNumbered(const TableLine& line) {
    return line.label.size() > 1 && line.label[1] >= u'0' && line.label[1] <= u'9';
  }

  /// Options of a question, or facts in its stem, may be numbered, too.
  bool AreMeantAsQuestions(const TableGrid& table, const std::vector<TableLine>& lines) const {
    if (lines.empty()) return false;
    const auto numbered = std::ranges::count_if(lines, IsNumbered);
    if (numbered < static_cast<std::ptrdiff_t>(lines.size()) ||
        QuestionAt(table.place.begin) >= outline_.questions.size())
      return true;
    const auto asks = [this](const TableLine& line) { return AsksSomething(text_, line.cells.front()); };
    return std::ranges::count_if(lines, asks) * 2 > numbered;
  }

  /// A table for the layout alone: cells that are no row's first ones begin with numbers of questions, or
  /// with labels of options, and in this order everything follows in turn.
  bool AreQuestions(const TableGrid& table, const std::vector<TableLine>& lines) const {
    const PaperText all = TextOfLines(text_, lines);
    std::vector<std::size_t> inner;  ///< places of lines that the table hides
    std::size_t place = 0;
    for (const TableLine& line : lines) {
      const TextSpan cell = line.cells.front();
      if (!IsFirstInRow(table, cell)) inner.push_back(place);
      place += cell.Size() + 1;
    }
    if (inner.empty()) return false;
    const PaperOutline outline = OutlineOf(all, context_);
    std::size_t shown = 0;
    int last = 0;
    for (const OutlinedQuestion& question : outline.questions) {
      if (last != 0 && question.number != last + 1) return false;
      last = question.number;
      const TextSpan label = Trimmed(all.characters, question.label);
      if (std::ranges::binary_search(inner, label.begin) && IsStem(question.stem.Of(all.characters))) ++shown;
      shown += HiddenOptions(question, inner);
    }
    return shown > 0;
  }

  static bool IsFirstInRow(const TableGrid& table, TextSpan cell) {
    const auto isFirst = [cell](const auto& row) {
      const auto first = std::ranges::find_if_not(row, &TableCell::IsEmpty);
      return first != row.end() && *first == cell;
    };
    return std::ranges::any_of(table.rows, isFirst);
  }

  /// "3.5" in a table of values begins like question 3.
  static bool IsStem(std::u16string_view stem) {
    return !stem.empty() && !(stem.front() >= u'0' && stem.front() <= u'9');
  }

  static std::size_t HiddenOptions(const OutlinedQuestion& question, const std::vector<std::size_t>& inner) {
    if (!question.options) return 0;
    return static_cast<std::size_t>(
        std::ranges::count_if(question.options->labels, [&inner](const OptionLabel& label) {
          return label.beginsLine && std::ranges::binary_search(inner, label.label.begin);
        }));
  }

  static std::vector<TableLine> WithLabels(std::vector<TableLine> lines) {
    for (std::size_t i = 0; i < lines.size(); ++i) lines[i].label = PreparedOption(i);
    return lines;
  }

  /// Tables that follow stems whose questions have no other options. One alone may be anything.
  std::vector<bool> PlainOptionTables() const {
    constexpr std::size_t kFewest = 2;
    std::vector<bool> arePlain;
    std::map<std::size_t, std::size_t> counts;  ///< of tables, by the number of their cells
    for (const TableGrid& table : tables_) {
      arePlain.push_back(CanBePlainOptions(table));
      if (arePlain.back()) ++counts[CellsByRows(table).size()];
    }
    std::size_t best = 0;
    std::size_t all = 0;
    for (const auto& [cells, count] : counts) {
      best = std::max(best, count);
      all += count;
    }
    if (best < kFewest || best * 2 < all || all * 2 < OptionlessQuestions())
      arePlain.assign(tables_.size(), false);
    return arePlain;
  }

  std::size_t OptionlessQuestions() const {
    return static_cast<std::size_t>(std::ranges::count_if(
        outline_.questions, [](const OutlinedQuestion& question) { return !question.HasOptions(); }));
  }

  bool CanBePlainOptions(const TableGrid& table) const {
    constexpr std::size_t kMost = 6;
    constexpr std::size_t kLongest = 200;
    const std::vector<TableLine> cells = CellsByRows(table);
    if (cells.size() < 2 || cells.size() > kMost || IsKeyTable(text_, table)) return false;
    const std::u16string_view text = text_.characters;
    const auto isShort = [text](const TableLine& line) {
      const std::u16string_view cell = line.cells.front().Of(text);
      return cell.size() <= kLongest && cell.find_first_of(kLineEnds) == cell.npos && !EndsAsStem(cell);
    };
    return std::ranges::all_of(cells, isShort) && FollowsStem(table) && !HasOtherOptions(table);
  }

  bool FollowsStem(const TableGrid& table) const {
    const std::size_t question = QuestionAt(table.place.begin);
    if (question < outline_.questions.size()) {
      const OutlinedQuestion& found = outline_.questions[question];
      const TextSpan stem = Trimmed(text_.characters, {found.label.end, table.place.begin});
      const bool isBeforeAnswer = found.answerLabel.begin >= CellsByRows(table).back().cells.front().end;
      return !stem.IsEmpty() && isBeforeAnswer && CountTablesIn({found.label.begin, found.whole.end}) == 1;
    }
    // Without numbers: the line before it must show that something is to follow.
    const TextSpan before = Trimmed(text_.characters, {LineBefore(table.place.begin), table.place.begin});
    return !before.IsEmpty() && EndsAsStem(before.Of(text_.characters));
  }

  std::size_t LineBefore(std::size_t place) const {
    std::size_t end = place;
    while (end > 0 && (IsLineEnd(text_.characters[end - 1]) || IsBlank(text_.characters[end - 1]))) --end;
    return LineBeginBefore(text_.characters, end);
  }

  bool HasOtherOptions(const TableGrid& table) const {
    const std::size_t index = QuestionAt(table.place.begin);
    if (index >= outline_.questions.size()) return false;
    const OutlinedQuestion& question = outline_.questions[index];
    const TextSpan before{question.label.end, table.place.begin};
    const TextSpan after{table.place.end, std::max(table.place.end, question.answerLabel.begin)};
    return FindOptions(text_.characters, before).has_value() ||
           FindOptions(text_.characters, after).has_value();
  }

  /// The index of the question that a place is in, or their number.
  std::size_t QuestionAt(std::size_t place) const {
    const auto& questions = outline_.questions;
    const auto after = std::ranges::upper_bound(
        questions, place, {}, [](const OutlinedQuestion& question) { return question.whole.begin; });
    if (after == questions.begin()) return questions.size();
    const auto index = static_cast<std::size_t>(after - questions.begin()) - 1;
    return questions[index].whole.Contains(place) ? index : questions.size();
  }

  std::size_t CountTablesIn(TextSpan span) const {
    const auto begin = [](const TableGrid& table) { return table.place.begin; };
    const auto first = std::ranges::lower_bound(tables_, span.begin, {}, begin);
    const auto last = std::ranges::lower_bound(tables_, span.end, {}, begin);
    return static_cast<std::size_t>(last - first);
  }

  const PaperText& text_;
  const PreparationContext& context_;
  PaperOutline outline_;
  std::vector<TableGrid> tables_;
};

}  // namespace

void step::TableOptions(PaperText& text, const PreparationContext& context) {
  if (context.paper.tables.empty()) return;
  ApplyEdits(text, TableReading(text, context).Edits());
}

}  // namespace quorvantis
