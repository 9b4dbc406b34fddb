// SPDX-License-Identifier: MIT
#include "exchange/table/TableQuestions.h"

#include "exchange/form/Blanks.h"
#include "exchange/form/Points.h"
#include "exchange/form/QuestionParts.h"
#include "exchange/form/TextSource.h"
#include "exchange/form/TrueFalseWords.h"
#include "exchange/markup/Markup.h"
#include "exchange/markup/MarkupNotes.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/NumberText.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// "2 points", "+3": the number, if nothing else in the cell could be one.
std::optional<double> ScoreOf(std::u16string_view cell) {
  if (cell.starts_with(u'+')) cell.remove_prefix(1);
  const std::size_t end = std::min(cell.find_first_of(u" \u00A0"), cell.size());
  const bool hasOther = std::ranges::any_of(cell.substr(end), IsDigit);
  return hasOther ? std::nullopt : PointsOf(cell.substr(0, end));
}

}  // namespace

ExchangedQuestion TableQuestions::Read(const TableRow& row, int number) {
  tools_.notes.Begin(number);
  isKeyTold_ = false;
  ExchangedQuestion question;
  question.number = number;
  question.text = Text(Cell(row, columns_.text));
  TakeKey(row, question);
  question.modelAnswer = Text(Cell(row, columns_.modelAnswer));
  TakeScore(Trimmed(Cell(row, columns_.score)), question);
  TakeKind(Trimmed(Cell(row, columns_.kind)), question);
  for (std::size_t i = columns_.count; i < row.size(); ++i) {
    if (Trimmed(row[i]).empty()) continue;
    tools_.notes.Tell(text_id::kExchangeCellsBeyond, {Excerpt(row[i])});
    break;
  }
  return question;
}

std::u16string TableQuestions::Cell(const TableRow& row, std::optional<std::size_t> column) {
  return column && *column < row.size() ? WithoutGuard(row[*column]) : std::u16string();
}

std::u16string TableQuestions::Text(std::u16string_view cell) {
  return TextWithoutFiles(ReadExamText(cell), tools_.notes);
}

std::vector<std::u16string> TableQuestions::OptionCells(const TableRow& row) const {
  std::vector<std::u16string> cells;
  for (const std::size_t column : columns_.options) cells.emplace_back(Trimmed(Cell(row, column)));
  while (!cells.empty() && cells.back().empty()) cells.pop_back();
  return cells;
}

/// Some tables have one column for the right option and for answers, under either name.
void TableQuestions::TakeKey(const TableRow& row, ExchangedQuestion& question) {
  const std::vector<std::u16string> options = OptionCells(row);
  std::u16string right(Trimmed(Cell(row, columns_.right)));
  std::u16string answers(Trimmed(Cell(row, columns_.answers)));
  if (!options.empty()) {
    if (!columns_.right) right.swap(answers);
    TakeRights(right, options, question);
  } else if (IsTrueFalse(Cell(row, columns_.kind))) {
    if (right.empty()) right.swap(answers);
    TakeTrueFalse(right, question);
  } else if (answers.empty()) {
    right.swap(answers);
  } else if (!right.empty()) {
    TellLeftOut(right);
  }
  TakeAnswers(answers, question);
}

void TableQuestions::TakeRights(std::u16string_view cell, const std::vector<std::u16string>& options,
                                ExchangedQuestion& question) {
  const NamedOptions named = NamedRights(cell, options, columns_.areOurs);
  TellDoubt(named, cell);
  for (std::size_t i = 0; i < options.size(); ++i) {
    if (!options[i].empty()) question.options.push_back({Text(options[i]), named.rights[i]});
  }
}

void TableQuestions::TellDoubt(const NamedOptions& named, std::u16string_view cell) {
  std::u16string letters;
  for (std::size_t i = 0; i < named.rights.size(); ++i) {
    if (named.rights[i]) letters.push_back(static_cast<char16_t>(u'A' + i));
  }
  switch (named.doubt) {
    case NamedOptions::Doubt::None:
      return;
    case NamedOptions::Doubt::Ambiguous:
      return tools_.notes.Tell(text_id::kExchangeAmbiguousRight, {Excerpt(cell), letters});
    case NamedOptions::Doubt::Partly:
      return tools_.notes.Tell(text_id::kExchangeRightReadPartly, {Excerpt(cell), letters});
    case NamedOptions::Doubt::NotRead:
      return TellKey(cell);
  }
}

void TableQuestions::TellKey(std::u16string_view cell) {
  isKeyTold_ = true;
  tools_.notes.Tell(text_id::kExchangeRightNotRead, {Excerpt(cell)});
}

void TableQuestions::TakeTrueFalse(std::u16string_view cell, ExchangedQuestion& question) {
  const std::optional<bool> truth = TruthOf(cell);
  MakeTrueFalse(truth.value_or(false), tools_.strings, question);
  if (truth) return;
  question.options[1].isRight = false;
  if (!cell.empty()) TellKey(cell);
}

void TableQuestions::TakeAnswers(std::u16string_view cell, ExchangedQuestion& question) {
  BlankAnswers answers = AnswersInCell(cell);
  for (std::u16string& answer : answers) answer = Text(answer);
  question.blanks = ByBlank(question.text, answers);
}

void TableQuestions::TakeScore(std::u16string_view cell, ExchangedQuestion& question) {
  question.score = ScoreOf(cell);
  if (!question.score && !cell.empty()) tools_.notes.Tell(text_id::kExchangeScoreNotRead, {Excerpt(cell)});
}

/// What the kind has no use for is told; without a kind, the cells that are filled tell it.
void TableQuestions::TakeKind(std::u16string_view cell, ExchangedQuestion& question) {
  const QuestionKind likely = !question.options.empty()  ? QuestionKind::Choice
                              : !question.blanks.empty() ? QuestionKind::FillIn
                                                         : QuestionKind::Essay;
  const auto named = IsTrueFalse(cell) ? std::optional(QuestionKind::Choice) : KindInCell(cell);
  if (!named && !cell.empty()) tools_.notes.Tell(text_id::kExchangeKindNotKnown, {Excerpt(cell)});
  question.kind = named.value_or(likely);
  const bool isChoice = question.kind == QuestionKind::Choice;
  const bool hasRight = std::ranges::any_of(question.options, &ExchangedOption::isRight);
  if (isChoice && !hasRight && !isKeyTold_ && !question.options.empty())
    tools_.notes.Tell(text_id::kExchangeNoRightRead);
  if (!isChoice && !question.options.empty()) TellLeftOut(question.options[0].text);
  if (question.kind != QuestionKind::FillIn && !question.blanks.empty()) UseAnswers(question);
}

/// An answer to a question that is none to fill in is its model answer, or is told.
void TableQuestions::UseAnswers(ExchangedQuestion& question) {
  const bool isModel = question.kind != QuestionKind::Choice && question.modelAnswer.empty();
  for (const BlankAnswers& blank : question.blanks) {
    for (const std::u16string& answer : blank) {
      if (!isModel) return TellLeftOut(answer);
      question.modelAnswer.append(question.modelAnswer.empty() ? u"" : u"\r\n").append(answer);
    }
  }
  question.blanks.clear();
}

void TableQuestions::TellLeftOut(std::u16string_view text) {
  tools_.notes.Tell(text_id::kExchangePartNotRead, {Excerpt(text)});
}

}  // namespace quorvantis
