// SPDX-License-Identifier: MIT
#include "exchange/table/TableFormat.h"

#include "exchange/form/Blanks.h"
#include "exchange/form/ExchangeLimits.h"
#include "exchange/form/Points.h"
#include "exchange/form/TextSource.h"
#include "exchange/markup/Markup.h"
#include "exchange/markup/MarkupNotes.h"
#include "exchange/table/TableColumns.h"
#include "model/AnswerLetters.h"
#include "model/ExamLimits.h"
#include "model/QuestionKinds.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/LineBreaks.h"
#include "text/Utf.h"

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

/// Reads the rows below the names.
class TableRows {
 public:
  TableRows(const TableColumns& columns, ReadingTools& tools) : columns_(columns), tools_(tools) {}

  ExchangedQuestion Read(const TableRow& row, int number) {
    tools_.notes.Begin(number);
    ExchangedQuestion question;
    question.number = number;
    question.text = Text(Cell(row, columns_.text));
    TakeOptions(row, question);
    BlankAnswers answers = AnswersInCell(Cell(row, columns_.answers));
    for (std::u16string& answer : answers) answer = Text(answer);
    question.blanks = ByBlank(question.text, answers);
    question.modelAnswer = Text(Cell(row, columns_.modelAnswer));
    question.score = PointsOf(Cell(row, columns_.score));
    TakeKind(Cell(row, columns_.kind), question);
    return question;
  }

 private:
  static std::u16string Cell(const TableRow& row, std::optional<std::size_t> column) {
    return column && *column < row.size() ? WithoutGuard(row[*column]) : std::u16string();
  }

  void TakeOptions(const TableRow& row, ExchangedQuestion& question) {
    std::vector<std::u16string> cells;
    for (const std::size_t column : columns_.options) cells.emplace_back(Trimmed(Cell(row, column)));
    while (!cells.empty() && cells.back().empty()) cells.pop_back();
    const std::u16string cell = Cell(row, columns_.right);
    const auto [rights, isAmbiguous] = NamedRights(Trimmed(cell), cells, columns_.areOurs);
    if (isAmbiguous) TellAmbiguous(Trimmed(cell), rights);
    for (std::size_t i = 0; i < cells.size(); ++i) {
      if (!cells[i].empty()) question.options.push_back({Text(cells[i]), rights[i]});
    }
  }

  void TellAmbiguous(std::u16string_view cell, const std::vector<bool>& rights) {
    std::u16string letters;
    for (std::size_t i = 0; i < rights.size(); ++i) {
      if (rights[i]) letters.push_back(static_cast<char16_t>(u'A' + i));
    }
    tools_.notes.Tell(text_id::kExchangeAmbiguousRight, {Excerpt(cell), letters});
  }

  std::u16string Text(std::u16string_view cell) {
    const ReadMarkup read = ReadExamText(cell);
    TellMarkupLosses(read.losses, tools_.notes);
    for (const MarkupReference& reference : read.references)
      tools_.notes.Tell(text_id::kExchangeNotFetched, {Excerpt(reference.address)});
    return read.text;
  }

  /// What the kind has no use for is told; without a kind, the cells that are filled tell it.
  void TakeKind(const std::u16string& cell, ExchangedQuestion& question) {
    const QuestionKind likely = !question.options.empty()  ? QuestionKind::Choice
                                : !question.blanks.empty() ? QuestionKind::FillIn
                                                           : QuestionKind::Essay;
    const auto named = KindInCell(cell);
    if (!named && !Trimmed(cell).empty()) tools_.notes.Tell(text_id::kExchangeKindNotKnown, {Excerpt(cell)});
    question.kind = named.value_or(likely);
    const bool hasRight = std::ranges::any_of(question.options, &ExchangedOption::isRight);
    if (question.kind == QuestionKind::Choice && !hasRight && !question.options.empty())
      tools_.notes.Tell(text_id::kExchangeNoRightRead);
  }

  const TableColumns& columns_;
  ReadingTools& tools_;
};

std::u16string KindWordOf(QuestionKind kind) {
  const KindRow* const row = FindKind(kind);
  return row != nullptr ? Utf8ToUtf16(row->word) : std::u16string();
}

TableRow CellsOf(const ExchangedQuestion& question) {
  TableRow cells{KindWordOf(question.kind), question.text};
  std::u16string right;
  for (std::size_t i = 0; i < kOptionCount; ++i) {
    const bool isThere = i < question.options.size();
    cells.push_back(isThere ? question.options[i].text : std::u16string());
    if (isThere && question.options[i].isRight) right.push_back(OptionLetter(i));
  }
  cells.push_back(right);
  BlankAnswers answers;
  for (const BlankAnswers& blank : question.blanks) answers.insert(answers.end(), blank.begin(), blank.end());
  cells.push_back(JoinAnswers(answers));
  cells.push_back(question.modelAnswer);
  cells.push_back(question.score ? Utf8ToUtf16(PointsText(*question.score)) : std::u16string());
  return cells;
}

/// Nothing if the file does not begin with a row that names columns.
std::optional<char16_t> SeparatorOfTable(const ExchangeSource& source) {
  const std::u16string text = HeadText(source);
  const std::u16string_view head = WithoutSeparatorLine(text);
  const char16_t separator = SeparatorOf(head);
  const auto rows = ReadTable(head, separator, 1);
  const bool isTable = !rows.empty() && ColumnsOf(rows[0]).IsUsable();
  return isTable ? std::optional(separator) : std::nullopt;
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
  const std::vector<TableRow> rows = ReadTable(table, SeparatorOf(table), kRows);
  TableColumns columns = rows.empty() ? TableColumns{} : ColumnsOf(rows[0]);
  const std::size_t first = columns.IsUsable() ? 1 : 0;
  if (first == 0) columns = ColumnsByShape(rows);
  if (!columns.IsUsable()) {
    tools.notes.Tell(text_id::kExchangeNoHeader);
    return std::nullopt;
  }
  ExchangedExam exam;
  TableRows reading(columns, tools);
  const std::size_t end = std::min(rows.size(), first + kMaxReadQuestions);
  exam.isCutShort = end < rows.size();
  for (std::size_t i = first; i < end && !tools.progress.IsCancelled(); ++i)
    exam.questions.push_back(reading.Read(rows[i], static_cast<int>(i + 1 - first)));
  tools.notes.Begin(0);
  return exam;
}

std::string TableWriter::Write(const ExchangedExam& exam, const StringTable&, Progress&) {
  std::vector<TableRow> rows{WrittenColumnNames()};
  for (const ExchangedQuestion& question : exam.questions) rows.push_back(CellsOf(question));
  std::u16string table;
  for (const TableRow& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (i > 0) table.push_back(separator_);
      table += CellText(WithLineEnds(row[i], u"\n"), separator_);
    }
    table += u"\r\n";
  }
  // Without the mark, spreadsheets take UTF-8 for something else.
  return std::string(kUtf8Mark) + Utf16ToUtf8(table);
}

}  // namespace quorvantis
