// SPDX-License-Identifier: MIT
#include "exchange/form/Points.h"
#include "exchange/table/TableColumns.h"
#include "exchange/table/TableFormat.h"
#include "model/AnswerLetters.h"
#include "model/ExamLimits.h"
#include "model/QuestionKinds.h"
#include "text/LineBreaks.h"
#include "text/Utf.h"

namespace quorvantis {
namespace {

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
  for (const BlankAnswers& blank : question.blanks) {
    if (blank.empty()) answers.emplace_back();
    answers.insert(answers.end(), blank.begin(), blank.end());
  }
  cells.push_back(JoinAnswers(answers));
  cells.push_back(question.modelAnswer);
  cells.push_back(question.score ? Utf8ToUtf16(PointsText(*question.score)) : std::u16string());
  return cells;
}

}  // namespace

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
